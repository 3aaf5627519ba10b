#include "paint/graphics.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "paint/fill.h"
#include "paint/path_builder.h"
#include "paint/recording.h"
#include "paint/stroke.h"

namespace {

// What the newest operation does to coordinates comes first.
void Prepend(Graphics& graphics, const Matrix& m) {
    const Matrix w = graphics.world;
    graphics.world = {w.a * m.a + w.c * m.b, w.b * m.a + w.d * m.b,       w.a * m.c + w.c * m.d,
                      w.b * m.c + w.d * m.d, w.a * m.e + w.c * m.f + w.e, w.b * m.e + w.d * m.f + w.f};
}

GraphicsPath& ScratchPolyline(Graphics& graphics, std::span<const IntPoint> points, bool closed) {
    GraphicsPath& path = ScratchPath(graphics);
    for (const IntPoint& point : points) LineTo(path, point.x, point.y);
    if (closed) ClosePath(path);
    return path;
}

std::vector<PaintPoint> ToPoints(std::span<const IntPoint> points) {
    std::vector<PaintPoint> floats;
    for (const IntPoint& point : points)
        floats.push_back({static_cast<float>(point.x), static_cast<float>(point.y)});
    return floats;
}

void SetNumbers(PenNumbers& numbers, std::span<const float> values) {
    numbers.count = std::min(values.size(), numbers.values.size());
    std::copy_n(values.begin(), numbers.count, numbers.values.begin());
}

void DrawImage(Graphics& graphics, const Image& image, double x, double y, double width, double height) {
    if (graphics.list == nullptr || image.width <= 0 || image.height <= 0 || width <= 0 || height <= 0)
        return;
    DrawList& list = *graphics.list;
    const PaintPoint origin = Map(graphics.world, x, y);
    const Growth growth = GrowthOf(graphics.world);
    const PaintPoint size{static_cast<float>(width * growth.height * growth.axes.stretch),
                          static_cast<float>(height * growth.height)};
    if (!IsNear(origin) || !IsNear(size) || !(size.x > 0 && size.y > 0)) return;
    const std::size_t first = list.text.size();
    list.text += image.file;
    list.primitives.emplace_back(DrawnImage{RangeOf(first, list.text.size()), origin.x, origin.y, size.x,
                                            size.y, growth.axes.rotation});
}

}  // namespace

Graphics GdipCreateGraphics(DrawList& list, float width, float height) {
    ClearList(list, width, height);
    return {.list = &list, .room = std::move(list.room)};
}

void GdipDeleteGraphics(Graphics& graphics) {
    if (graphics.list == nullptr) return;
    graphics.list->room = std::move(graphics.room);
    graphics.list = nullptr;
}

void GdipGraphicsClear(Graphics& graphics, Argb colour) {
    if (graphics.list != nullptr) graphics.list->primitives.emplace_back(ClearSurface{colour});
}

void GdipResetWorldTransform(Graphics& graphics) {
    graphics.world = {};
}
void GdipScaleWorldTransform(Graphics& graphics, double sx, double sy) {
    Prepend(graphics, {sx, 0, 0, sy, 0, 0});
}
void GdipTranslateWorldTransform(Graphics& graphics, double dx, double dy) {
    Prepend(graphics, {1, 0, 0, 1, dx, dy});
}
void GdipRotateWorldTransform(Graphics& graphics, double degrees) {
    const double angle = degrees * kRadPerDeg;
    Prepend(graphics, {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0});
}

void GdipSetClipPath(Graphics& graphics, const GraphicsPath& path) {
    PaintPath recorded;
    if (graphics.list == nullptr || !RecordPath(graphics, path, recorded)) return;
    GdipResetClip(graphics);
    graphics.list->primitives.emplace_back(ClipIn{recorded});
    graphics.clipped = true;
}

void GdipSetClipRectI(Graphics& graphics, int x, int y, int width, int height) {
    if (width <= 0 || height <= 0) return;
    GraphicsPath& path = ScratchPath(graphics);
    AddRectangle(path, x, y, width, height);
    if (AddPathPrimitive<ClipOut>(graphics, path) != nullptr) graphics.clipped = true;
}

void GdipResetClip(Graphics& graphics) {
    if (graphics.list != nullptr && graphics.clipped) graphics.list->primitives.emplace_back(Unclip{});
    graphics.clipped = false;
}

void GdipSetPenDashStyle(Pen& pen, int style) {
    static constexpr float kDash[] = {3, 1}, kDot[] = {1, 1}, kDashDot[] = {3, 1, 1, 1},
                           kDashDotDot[] = {3, 1, 1, 1, 1, 1};
    constexpr std::span<const float> kStyles[] = {{}, kDash, kDot, kDashDot, kDashDotDot};
    if (style >= 0 && style < static_cast<int>(std::size(kStyles)))
        SetNumbers(pen.dashes, kStyles[static_cast<std::size_t>(style)]);
}

void GdipSetPenDashArray(Pen& pen, std::span<const float> dashes) {
    if (std::ranges::all_of(dashes, [](float dash) { return dash > 0 && dash <= kFarthest; }))
        SetNumbers(pen.dashes, dashes);
}
void GdipSetPenCompoundArray(Pen& pen, std::span<const float> edges) {
    if (std::ranges::all_of(edges, [](float edge) { return edge >= 0 && edge <= 1; }))
        SetNumbers(pen.compound, edges);
}

void GdipDrawLine(Graphics& graphics, const Pen& pen, double x1, double y1, double x2, double y2) {
    GraphicsPath& path = ScratchPath(graphics);
    MoveTo(path, x1, y1);
    LineTo(path, x2, y2);
    Stroke(graphics, pen, path);
}
void GdipDrawLineI(Graphics& graphics, const Pen& pen, int x1, int y1, int x2, int y2) {
    GdipDrawLine(graphics, pen, x1, y1, x2, y2);
}
void GdipDrawLines(Graphics& graphics, const Pen& pen, std::span<const PaintPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    AddPolyline(path, points, false);
    Stroke(graphics, pen, path);
}
void GdipDrawLinesI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points) {
    Stroke(graphics, pen, ScratchPolyline(graphics, points, false));
}
void GdipDrawRectangleI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height) {
    if (width < 0 || height < 0) return;
    GraphicsPath& path = ScratchPath(graphics);
    AddRectangle(path, x, y, width, height);
    Stroke(graphics, pen, path);
}
void GdipDrawEllipseI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height) {
    GraphicsPath& path = ScratchPath(graphics);
    AddEllipse(path, x, y, width, height);
    Stroke(graphics, pen, path);
}
void GdipDrawArcI(Graphics& graphics, const Pen& pen, int x, int y, int width, int height, double start,
                  double sweep) {
    GraphicsPath& path = ScratchPath(graphics);
    AddArc(path, x, y, width, height, start, sweep);
    Stroke(graphics, pen, path);
}
void GdipDrawCurveI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    AddCardinalSpline(path, ToPoints(points), false);
    Stroke(graphics, pen, path);
}
void GdipDrawPolygonI(Graphics& graphics, const Pen& pen, std::span<const IntPoint> points) {
    Stroke(graphics, pen, ScratchPolyline(graphics, points, true));
}
void GdipDrawPath(Graphics& graphics, const Pen& pen, const GraphicsPath& path) {
    Stroke(graphics, pen, path);
}

void GdipFillRectangleI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height) {
    if (width <= 0 || height <= 0) return;
    GraphicsPath& path = ScratchPath(graphics);
    AddRectangle(path, x, y, width, height);
    Fill(graphics, brush, path);
}
void GdipFillEllipseI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height) {
    GraphicsPath& path = ScratchPath(graphics);
    AddEllipse(path, x, y, width, height);
    Fill(graphics, brush, path);
}
void GdipFillPieI(Graphics& graphics, const Brush& brush, int x, int y, int width, int height, double start,
                  double sweep) {
    GraphicsPath& path = ScratchPath(graphics);
    AddPie(path, x, y, width, height, start, sweep);
    Fill(graphics, brush, path);
}
void GdipFillPolygon(Graphics& graphics, const Brush& brush, std::span<const PaintPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    AddPolyline(path, points, true);
    Fill(graphics, brush, path);
}
void GdipFillPolygonI(Graphics& graphics, const Brush& brush, std::span<const IntPoint> points) {
    Fill(graphics, brush, ScratchPolyline(graphics, points, true));
}
void GdipFillClosedCurveI(Graphics& graphics, const Brush& brush, std::span<const IntPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    AddCardinalSpline(path, ToPoints(points), true);
    Fill(graphics, brush, path);
}
void GdipFillPath(Graphics& graphics, const Brush& brush, const GraphicsPath& path) {
    Fill(graphics, brush, path);
}

GraphicsPath GdipCreatePath(bool winding) {
    return {.winding = winding};
}
void GdipAddPathLineI(GraphicsPath& path, int x1, int y1, int x2, int y2) {
    LineTo(path, x1, y1);
    LineTo(path, x2, y2);
}
void GdipAddPathArcI(GraphicsPath& path, int x, int y, int width, int height, double start, double sweep) {
    AddArc(path, x, y, width, height, start, sweep);
}
void GdipAddPathRectangleI(GraphicsPath& path, int x, int y, int width, int height) {
    AddRectangle(path, x, y, width, height);
}
void GdipAddPathPolygonI(GraphicsPath& path, std::span<const IntPoint> points) {
    path.open = false;
    for (const IntPoint& point : points) LineTo(path, point.x, point.y);
    ClosePath(path);
}
void GdipClosePathFigure(GraphicsPath& path) {
    ClosePath(path);
}

void GdipDrawImageI(Graphics& graphics, const Image& image, int x, int y) {
    DrawImage(graphics, image, x, y, image.width * kScreenDensity / image.density.x,
              image.height * kScreenDensity / image.density.y);
}

void GdipDrawImageRectI(Graphics& graphics, const Image& image, int x, int y, int width, int height) {
    DrawImage(graphics, image, x, y, width, height);
}
