#include "display/formats/tablet.h"

#include "display/formats/unbuilt.h"
#include "paint/painter.h"
#include "state/side.h"

void DrawTablet(Graphics& graphics, int side) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), 0, 0, 340, 448);
    DrawName(graphics, 170, 448, side == kCaptain ? "EFB L" : "EFB R");
}
