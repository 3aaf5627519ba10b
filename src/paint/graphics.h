#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "paint/draw_list.h"
#include "paint/images.h"

// The drawing operations under the names of the interface that they come from, recorded to a draw list.
// Coordinates are logical. Pens, brushes, paths, fonts and formats are plain values: nothing has to be
// deleted. A primitive that can't be drawn (no points, a negative size, a coordinate that is no number or
// beyond a million) is left out and the picture goes on.

struct Matrix {  // x' = a x + c y + e, y' = b x + d y + f
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
};

struct GraphicsPath {
    std::vector<PathVerb> verbs = {};
    std::vector<PaintPoint> points = {};
    bool winding = false;
    bool open = false;  // the last figure takes further lines
};

/// The surface of one frame: a world transform and a clip over the list that it records to.
struct Graphics {
    DrawList* list = nullptr;
    Matrix world = {};
    bool clipped = false;
    GraphicsPath scratch = {};  // of the figure being drawn; keeps its storage from figure to figure
};

struct LineArrowCap {
    float height, width;  // in pen widths
    bool filled;
};

/// A short list of numbers that a pen carries by value; what is beyond its room is dropped.
struct PenNumbers {
    std::array<float, 16> values = {};
    std::size_t count = 0;
    std::span<const float> All() const { return {values.data(), count}; }
};

struct Pen {
    Argb colour = 0xff000000;
    float width = 1;
    PenNumbers dashes = {};     // in pen widths, on and off in turn
    PenNumbers compound = {};   // pairs of edges across the pen, 0 left to 1 right
    LineArrowCap end_cap = {};  // a height of 0: none
};

enum class HatchStyle {
    kHorizontal = 0,
    kVertical = 1,
    kForwardDiagonal = 2,  // from the top left to the bottom right
    kBackwardDiagonal = 3,
    kCross = 4,
    kDiagonalCross = 5,
};

struct Brush {
    Argb colour = 0xff000000;
    bool hatched = false;
    HatchStyle hatch = HatchStyle::kHorizontal;
    Argb back = 0;  // between the hatch lines
};

struct Font {
    std::uint16_t family = 0;
    float size = 10;  // pixels of the em
};

enum class LineAlign { kNear, kCenter, kFar };

constexpr int kFormatRightToLeft = 0x1;
constexpr int kFormatNoWrap = 0x1000;
constexpr int kFormatNoClip = 0x4000;

struct StringFormat {
    int flags = 0;
    LineAlign line_align = LineAlign::kNear;
};

struct LayoutRect {
    float x, y, width, height;
};

struct IntPoint {
    int x, y;
};

// surface
Graphics GdipCreateGraphics(DrawList& list, float width, float height);
void GdipGraphicsClear(Graphics& graphics, Argb colour);

// world transform; each is prepended, so that the newest acts first on coordinates
void GdipResetWorldTransform(Graphics& graphics);
void GdipScaleWorldTransform(Graphics& graphics, double sx, double sy);
void GdipTranslateWorldTransform(Graphics& graphics, double dx, double dy);
void GdipRotateWorldTransform(Graphics& graphics, double degrees);  // clockwise on screen

// clip
void GdipSetClipPath(Graphics& graphics, const GraphicsPath& path);  // replaces the clip
void GdipSetClipRectI(Graphics& graphics, int x, int y, int width,
                      int height);  // takes the rectangle out of it
void GdipResetClip(Graphics& graphics);

// pens and brushes
inline Pen GdipCreatePen1(Argb colour, float width) {
    return {.colour = colour, .width = width};
}
void GdipSetPenDashStyle(Pen& pen, int style);  // 0 solid, 1 dash, 2 dot, 3 dash dot, 4 dash dot dot
/// Lengths in pen widths, or in pixels of a pen that is thinner than one. All above 0, else the pen stays as
/// it is.
void GdipSetPenDashArray(Pen& pen, std::span<const float> dashes);
/// Edges from 0 to 1, else the pen stays as it is.
void GdipSetPenCompoundArray(Pen& pen, std::span<const float> edges);
inline LineArrowCap GdipCreateAdjustableArrowCap(float height, float width, bool filled) {
    return {height, width, filled};
}
inline void GdipSetPenCustomEndCap(Pen& pen, LineArrowCap cap) {
    pen.end_cap = cap;
}
inline Brush GdipCreateSolidFill(Argb colour) {
    return {.colour = colour};
}
inline Brush GdipCreateHatchBrush(HatchStyle style, Argb fore, Argb back) {
    return {fore, true, style, back};
}

// outlines
void GdipDrawLineI(Graphics& graphics, const Pen& pen, int x1, int y1, int x2, int y2);
void GdipDrawLine(Graphics& graphics, const Pen& pen, double x1, double y1, double x2, double y2);
void GdipDrawLines(Graphics& graphics, const Pen& pen, std::span<const PaintPoint> points);
void GdipDrawLinesI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points);
void GdipDrawRectangleI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height);
void GdipDrawEllipseI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height);
void GdipDrawArcI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height, double start,
                  double sweep);
void GdipDrawCurveI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points);
void GdipDrawPolygonI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points);
void GdipDrawPath(Graphics& graphics, const Pen& pen, const GraphicsPath& path);

// fills
void GdipFillRectangleI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height);
void GdipFillEllipseI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height);
void GdipFillPieI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height, double start,
                  double sweep);
void GdipFillPolygon(Graphics& graphics, const Brush& brush, std::span<const PaintPoint> points);
void GdipFillPolygonI(Graphics& graphics, const Brush& brush, std::span<const IntPoint> points);
void GdipFillClosedCurveI(Graphics& graphics, const Brush& brush, std::span<const IntPoint> points);
void GdipFillPath(Graphics& graphics, const Brush& brush, const GraphicsPath& path);

// paths
GraphicsPath GdipCreatePath(bool winding = false);
void GdipAddPathLineI(GraphicsPath& path, int x1, int y1, int x2, int y2);
void GdipAddPathArcI(GraphicsPath& path, int x, int y, int width, int height, double start, double sweep);
void GdipAddPathRectangleI(GraphicsPath& path, int x, int y, int width, int height);
void GdipAddPathPolygonI(GraphicsPath& path, std::span<const IntPoint> points);
void GdipClosePathFigure(GraphicsPath& path);

// text
inline Font GdipCreateFont(std::uint16_t family, float size) {
    return {family, size};
}
inline StringFormat GdipCreateStringFormat(int flags) {
    return {.flags = flags};
}
inline void GdipSetStringFormatFlags(StringFormat& format, int flags) {
    format.flags = flags;
}
inline void GdipSetStringFormatLineAlign(StringFormat& format, LineAlign align) {
    format.line_align = align;
}
/// A rectangle without size: no wrapping, its origin is the anchor. Text begins a sixth of an em inside.
/// Text is of the ANSI code page; a line feed begins a new line.
void GdipDrawString(Graphics& graphics, std::string_view text, const Font& font, const LayoutRect& rect,
                    const StringFormat* format, const Brush& brush);

/// Drawn with its physical size: as many units as the screen has dots there.
void GdipDrawImageI(Graphics& graphics, const Image& image, int x, int y);
void GdipDrawImageRectI(Graphics& graphics, const Image& image, int x, int y, int width, int height);
