#include "display/formats/select_prompt.h"

#include "paint/painter.h"

// The white stands unscaled.
void DrawSelectPrompt(Graphics& graphics, const ContentPlace& place) {
    constexpr Argb kFill = 0xffdee6e9;
    constexpr int kTop = 190, kBoxWidth = 120, kBoxHeight = 24;
    const int middle = (place.half == 1 ? 0 : kHalf) + kHalf / 2;
    GdipFillRectangleI(graphics, GdipCreateSolidFill(kFill), middle - kBoxWidth / 2, kTop - 4, kBoxWidth,
                       kBoxHeight);
    CentredText(graphics, middle, kTop, 14, kBlack, "SELECT MFD");
}
