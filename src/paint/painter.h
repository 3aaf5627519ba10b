#pragma once

#include <initializer_list>
#include <string_view>

#include "paint/colours.h"
#include "paint/graphics.h"

// Short words over the drawing operations, so that a format reads like its description. Colours are base
// colours, scaled by the brightness here.

/// Text with its upper left corner at x, y, in the display units' family; sizes in pixels.
void Text(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
/// The same in a family of its own.
void TextIn(Graphics& graphics, std::string_view family, double x, double y, float size, Rgb colour,
            std::string_view text);
/// The same with its middle at x.
void CentredText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
void Line(Graphics& graphics, double x1, double y1, double x2, double y2, Rgb colour, float width = 1);
void FilledBox(Graphics& graphics, int x, int y, int width, int height, Rgb colour);
void BoxOutline(Graphics& graphics, int x, int y, int width, int height, Rgb colour, float width_of_line = 1);

/// Text whose middle stands at x, y; text that ends or begins at x, with its middle at y.
void TextAbout(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
void TextUpTo(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
void TextFrom(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);

inline Pen PenOf(Rgb colour, float width = 1) {
    return GdipCreatePen1(Scaled(colour), width);
}
inline Brush BrushOf(Rgb colour) {
    return GdipCreateSolidFill(Scaled(colour));
}

/// Lines through points and back to the first one; the same filled.
void DrawOutline(Graphics& graphics, const Pen& pen, std::initializer_list<PaintPoint> points);
void FillOutline(Graphics& graphics, const Brush& brush, std::initializer_list<PaintPoint> points);
void FilledRectangle(Graphics& graphics, const Brush& brush, double x, double y, double width, double height);

/// Lets only a rectangle be drawn on until the end of the block.
class ClipBlock {
  public:
    ClipBlock(Graphics& graphics, int x, int y, int width, int height);
    ~ClipBlock() { GdipResetClip(graphics_); }
    ClipBlock(const ClipBlock&) = delete;
    ClipBlock& operator=(const ClipBlock&) = delete;

  private:
    Graphics& graphics_;
};

/// Keeps the transform and gives it back at the end of the block.
class TransformBlock {
  public:
    explicit TransformBlock(Graphics& graphics) : graphics_(graphics), world_(graphics.world) {}
    ~TransformBlock() { graphics_.world = world_; }
    TransformBlock(const TransformBlock&) = delete;
    TransformBlock& operator=(const TransformBlock&) = delete;

  private:
    Graphics& graphics_;
    Matrix world_;
};
