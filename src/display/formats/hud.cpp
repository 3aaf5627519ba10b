#include "display/formats/hud.h"

#include "display/formats/unbuilt.h"

void DrawHud(Graphics& graphics) {
    DrawName(graphics, 240, 410, "HUD");
}
