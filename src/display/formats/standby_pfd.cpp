#include "display/formats/standby_pfd.h"

#include "display/formats/unbuilt.h"

void DrawStandbyPfd(Graphics& graphics) {
    DrawName(graphics, 50, 92, "STBY");
}
