#include "paint/painter.h"

#include "paint/fonts.h"
#include "state/cfg.h"

void TextIn(Graphics& graphics, std::string_view family, double x, double y, float size, Rgb colour,
            std::string_view text) {
    const LayoutRect anchor{static_cast<float>(x), static_cast<float>(y), 0, 0};
    GdipDrawString(graphics, text, GdipCreateFont(FamilyOf(family), size), anchor, nullptr,
                   GdipCreateSolidFill(Scaled(colour)));
}

void Text(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    TextIn(graphics, cfg.DuFont, x, y, size, colour, text);
}

void CentredText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    constexpr float kPadding = 1.0f / 6;  // of the em, before a text
    const float half = (TextWidth(FamilyOf(cfg.DuFont), text) / 2 + kPadding) * size;
    Text(graphics, x - half, y, size, colour, text);
}

void Line(Graphics& graphics, double x1, double y1, double x2, double y2, Rgb colour, float width) {
    GdipDrawLine(graphics, GdipCreatePen1(Scaled(colour), width), x1, y1, x2, y2);
}

void FilledBox(Graphics& graphics, int x, int y, int width, int height, Rgb colour) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Scaled(colour)), x, y, width, height);
}

void BoxOutline(Graphics& graphics, int x, int y, int width, int height, Rgb colour, float width_of_line) {
    GdipDrawRectangleI(graphics, GdipCreatePen1(Scaled(colour), width_of_line), x, y, width, height);
}
