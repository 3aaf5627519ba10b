#include "display/formats/eicas.h"

#include "display/formats/unbuilt.h"

void DrawEicas(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "EICAS");
}
