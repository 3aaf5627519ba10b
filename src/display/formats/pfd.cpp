#include "display/formats/pfd.h"

#include "display/formats/unbuilt.h"

void DrawPfd(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "PFD");
}
