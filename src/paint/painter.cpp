#include "paint/painter.h"

#include "paint/fonts.h"
#include "paint/recording.h"
#include "state/cfg.h"

namespace {

constexpr float kPadding = 1.0f / 6;  // of the em, which stands before a text

float WidthOf(std::string_view text, float size) {
    return TextWidth(FamilyOf(cfg.DuFont), text) * size;
}

// From the top of a line's cell to the middle of its figures.
double MiddleOfFigures(float size) {
    constexpr float kHalfFigure = 0.36f;  // of the em
    return (MetricsOf(FamilyOf(cfg.DuFont)).ascent - kHalfFigure) * size;
}

}  // namespace

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

void DrawOutline(Graphics& graphics, const Pen& pen, std::initializer_list<PaintPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    for (const PaintPoint& point : points) {
        path.verbs.push_back(path.points.empty() ? PathVerb::kMove : PathVerb::kLine);
        path.points.push_back(point);
    }
    path.verbs.push_back(PathVerb::kClose);
    GdipDrawPath(graphics, pen, path);
}

void FillOutline(Graphics& graphics, const Brush& brush, std::initializer_list<PaintPoint> points) {
    GdipFillPolygon(graphics, brush, {points.begin(), points.size()});
}

void FilledRectangle(Graphics& graphics, const Brush& brush, double x, double y, double width,
                     double height) {
    FillOutline(graphics, brush, {At(x, y), At(x + width, y), At(x + width, y + height), At(x, y + height)});
}

ClipBlock::ClipBlock(Graphics& graphics, int x, int y, int width, int height) : graphics_(graphics) {
    GraphicsPath& path = ScratchPath(graphics);
    GdipAddPathRectangleI(path, x, y, width, height);
    GdipSetClipPath(graphics, path);
}

void TextAbout(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    CentredText(graphics, x, y - MiddleOfFigures(size), size, colour, text);
}

void TextUpTo(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    Text(graphics, x - WidthOf(text, size) - kPadding * size, y - MiddleOfFigures(size), size, colour, text);
}

void TextFrom(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    Text(graphics, x - kPadding * size, y - MiddleOfFigures(size), size, colour, text);
}
