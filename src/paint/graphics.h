#pragma once

#include <span>
#include <string_view>

#include "paint/graphics_types.h"
#include "paint/images.h"

// The drawing operations under the names of the interface that they come from, recorded to a draw list.
// Coordinates are logical. Pens, brushes, paths, fonts and formats are plain values: nothing has to be
// deleted. A primitive that can't be drawn (no points, a negative size, a coordinate that is no number or
// beyond a million) is left out and the picture goes on.

// surface
Graphics GdipCreateGraphics(DrawList& list, float width, float height);
/// The picture is done: what figures were made in stays with the list, so that the next picture allocates
/// nothing.
void GdipDeleteGraphics(Graphics& graphics);
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
