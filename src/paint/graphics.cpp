#include "paint/graphics.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "paint/fonts.h"
#include "paint/path_builder.h"
#include "platform/files.h"

namespace {

PaintPoint Map(const Matrix& m, double x, double y) {
    return {static_cast<float>(m.a * x + m.c * y + m.e), static_cast<float>(m.b * x + m.d * y + m.f)};
}

// How much a height grows under the transform, and the axes that stand for the rest of it.
struct Growth {
    double height;
    LocalAxes axes;
};
Growth GrowthOf(const Matrix& m) {
    constexpr double kNothing = 1e-12;
    if (m.b == 0 && m.c == 0 && m.a > 0 && m.d > kNothing)
        return {m.d, {0, static_cast<float>(m.a / m.d), 0}};
    const double run = std::hypot(m.a, m.b);
    const double height = run > kNothing ? std::fabs(m.a * m.d - m.b * m.c) / run : 0;
    if (height <= kNothing) return {height, {}};
    const double slant = (m.a * m.c + m.b * m.d) / run;
    return {height,
            {static_cast<float>(std::atan2(m.b, m.a) * 180 / std::numbers::pi),
             static_cast<float>(run / height), static_cast<float>(slant / height)}};
}

// Turned, mirrored or scaled alike both ways: a pen stays round.
bool KeepsCircles(const Matrix& m) {
    const double run = m.a * m.a + m.b * m.b, rise = m.c * m.c + m.d * m.d;
    return std::fabs(run - rise) <= 1e-4 * run && std::fabs(m.a * m.c + m.b * m.d) <= 1e-4 * run;
}

// What the newest operation does to coordinates comes first.
void Prepend(Graphics& graphics, const Matrix& m) {
    const Matrix w = graphics.world;
    graphics.world = {w.a * m.a + w.c * m.b, w.b * m.a + w.d * m.b,       w.a * m.c + w.c * m.d,
                      w.b * m.c + w.d * m.d, w.a * m.e + w.c * m.f + w.e, w.b * m.e + w.d * m.f + w.f};
}

PaintRange Extend(std::size_t first, std::size_t end) {
    return {static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(end - first)};
}

PaintPath Record(Graphics& graphics, const GraphicsPath& path) {
    DrawList& list = *graphics.list;
    const std::size_t verbs = list.verbs.size(), points = list.points.size();
    list.verbs.insert(list.verbs.end(), path.verbs.begin(), path.verbs.end());
    for (const PaintPoint& point : path.points) list.points.push_back(Map(graphics.world, point.x, point.y));
    return {Extend(verbs, list.verbs.size()), Extend(points, list.points.size()), path.winding};
}

// Coordinates beyond this are errors of whoever computed them, and too large for those who paint.
constexpr float kFarthest = 1e6f;

bool IsNear(PaintPoint p) {
    return std::fabs(p.x) <= kFarthest && std::fabs(p.y) <= kFarthest;
}

bool Drawable(const Graphics& graphics, const GraphicsPath& path) {
    return graphics.list != nullptr && path.points.size() > 1 &&
           std::ranges::all_of(path.points,
                               [&](PaintPoint p) { return IsNear(Map(graphics.world, p.x, p.y)); });
}

void StrokeOnce(Graphics& graphics, const Pen& pen, const GraphicsPath& path, double width) {
    DrawList& list = *graphics.list;
    const Matrix& world = graphics.world;
    const Growth growth =
        KeepsCircles(world) ? Growth{std::sqrt(world.a * world.a + world.b * world.b), {}} : GrowthOf(world);
    constexpr float kThinnest = 1;  // below it a pen is a line of one pixel, and its dashes count in these
    const auto scale = static_cast<float>(growth.height);
    const std::size_t dashes = list.dashes.size();
    const float dash_unit = std::max(pen.width * scale, kThinnest);
    for (const float dash : pen.dashes.All()) list.dashes.push_back(dash * dash_unit);
    StrokePath stroke{Record(graphics, path), pen.colour, static_cast<float>(width) * scale};
    stroke.dashes = Extend(dashes, list.dashes.size());
    if (stroke.width * std::max(growth.axes.stretch, 1.0f) > kThinnest) stroke.axes = growth.axes;
    list.primitives.emplace_back(stroke);
}

// The arrow at the end of a path's last line; the line is cut back to the arrow's base, so that its tip is
// sharp.
void DrawWithArrow(Graphics& graphics, const Pen& pen, const GraphicsPath& path) {
    GraphicsPath line = Flatten(path, 0.1);
    const std::size_t count = line.points.size();
    if (line.verbs.back() == PathVerb::kClose || count < 2) return StrokeOnce(graphics, pen, path, pen.width);
    const PaintPoint tip = line.points[count - 1], before = line.points[count - 2];
    const double dx = tip.x - before.x, dy = tip.y - before.y, length = std::hypot(dx, dy);
    if (length == 0) return StrokeOnce(graphics, pen, path, pen.width);
    const double ux = dx / length, uy = dy / length;
    const double height = pen.end_cap.height * pen.width, half = pen.end_cap.width * pen.width / 2;
    const PaintPoint base{static_cast<float>(tip.x - ux * height), static_cast<float>(tip.y - uy * height)};
    GraphicsPath head;
    MoveTo(head, base.x - uy * half, base.y + ux * half);
    LineTo(head, tip.x, tip.y);
    LineTo(head, base.x + uy * half, base.y - ux * half);
    if (!pen.end_cap.filled) {
        StrokeOnce(graphics, pen, line, pen.width);
        return StrokeOnce(graphics, GdipCreatePen1(pen.colour, pen.width), head, pen.width);
    }
    ClosePath(head);
    if (length > height) {
        line.points[count - 1] = base;
        StrokeOnce(graphics, pen, line, pen.width);
    }
    GdipFillPath(graphics, GdipCreateSolidFill(pen.colour), head);
}

void Stroke(Graphics& graphics, const Pen& pen, const GraphicsPath& path) {
    if (!Drawable(graphics, path) || !(pen.width >= 0 && pen.width <= kFarthest)) return;
    if (pen.compound.count >= 2) {
        for (std::size_t i = 0; i + 1 < pen.compound.count; i += 2) {
            const double from = pen.compound.values[i], to = pen.compound.values[i + 1];
            if (to <= from) continue;
            StrokeOnce(graphics, pen, OffsetPath(path, ((from + to) / 2 - 0.5) * pen.width),
                       (to - from) * pen.width);
        }
    } else if (pen.end_cap.height > 0) {
        DrawWithArrow(graphics, pen, path);
    } else {
        StrokeOnce(graphics, pen, path, pen.width);
    }
}

// Parallel lines one unit wide and 8 apart, where a x + b y is `first` and each multiple of 8 from there.
struct HatchLines {
    int a, b, first;
};
constexpr HatchLines kLevel{0, 1, 0}, kUpright{1, 0, 0}, kFalling{-1, 1, 0}, kRising{1, 1, 7};
constexpr HatchLines kHatches[][2] = {
    {kLevel, kLevel},   {kUpright, kUpright}, {kFalling, kFalling},
    {kRising, kRising}, {kLevel, kUpright},   {kFalling, kRising},
};

// The stretches of one hatch line that lie inside of a flat path, by even-odd, as lines of `to`.
void AddHatchLine(GraphicsPath& to, const HatchLines& lines, float value, const GraphicsPath& flat,
                  std::span<const PaintPoint> corners, std::vector<float>& crossings) {
    const auto across = [&](PaintPoint p) {
        return static_cast<float>(lines.a) * p.x + static_cast<float>(lines.b) * p.y - value;
    };
    const auto along = [&](PaintPoint p) { return lines.b != 0 ? p.x : p.y; };
    crossings.clear();
    std::size_t first = 0, next = 0;
    const auto edge = [&](PaintPoint from, PaintPoint end) {
        const float before = across(from), after = across(end);
        if ((before <= 0) == (after <= 0)) return;
        crossings.push_back(along(from) + before / (before - after) * (along(end) - along(from)));
    };
    for (const PathVerb verb : flat.verbs) {
        if (verb == PathVerb::kMove) {
            if (next > first) edge(corners[next - 1], corners[first]);
            first = next++;
        } else if (verb == PathVerb::kLine) {
            edge(corners[next - 1], corners[next]);
            ++next;
        }
    }
    if (next > first) edge(corners[next - 1], corners[first]);
    std::sort(crossings.begin(), crossings.end());
    const auto point = [&](float t) {
        if (lines.b == 0) return PaintPoint{value, t};
        return PaintPoint{t, (value - static_cast<float>(lines.a) * t) / static_cast<float>(lines.b)};
    };
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        const PaintPoint from = point(crossings[i]), end = point(crossings[i + 1]);
        MoveTo(to, from.x, from.y);
        LineTo(to, end.x, end.y);
    }
}

// The lines of a hatch stand in the list's frame, whatever the transform, and so go on from figure to figure.
void FillHatch(Graphics& graphics, const Brush& brush, const GraphicsPath& path) {
    constexpr float kPeriod = 8, kLineShift = 0.5f;  // a line is drawn half a unit to the right and below
    const GraphicsPath flat = Flatten(path, 0.25);
    std::vector<PaintPoint> corners;
    for (const PaintPoint& given : flat.points) {
        const PaintPoint p = Map(graphics.world, given.x, given.y);
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
        corners.push_back({p.x - kLineShift, p.y - kLineShift});
    }
    const float reach = graphics.list->width + graphics.list->height;
    GraphicsPath stretches;
    std::vector<float> crossings;
    const auto& pair = kHatches[static_cast<std::size_t>(brush.hatch)];
    const bool crossed = pair[0].a != pair[1].a || pair[0].b != pair[1].b;
    for (const HatchLines& lines : std::span(pair).first(crossed ? 2 : 1)) {
        float least = reach, most = -reach;
        for (const PaintPoint& p : corners) {
            const float value = static_cast<float>(lines.a) * p.x + static_cast<float>(lines.b) * p.y;
            least = std::min(least, value), most = std::max(most, value);
        }
        const auto start = static_cast<float>(lines.first);
        float value = start + std::ceil((std::max(least, -reach) - start) / kPeriod) * kPeriod;
        for (; value <= std::min(most, reach); value += kPeriod)
            AddHatchLine(stretches, lines, value, flat, corners, crossings);
    }
    if (stretches.verbs.empty()) return;
    const Matrix world = graphics.world;
    graphics.world = {};
    StrokeOnce(graphics, GdipCreatePen1(brush.colour, 1), stretches, 1);
    graphics.world = world;
}

void Fill(Graphics& graphics, const Brush& brush, const GraphicsPath& path) {
    if (!Drawable(graphics, path)) return;
    const Argb colour = brush.hatched ? brush.back : brush.colour;
    if (colour >> 24 != 0) graphics.list->primitives.emplace_back(FillPath{Record(graphics, path), colour});
    if (brush.hatched) FillHatch(graphics, brush, path);
}

// The integer forms share the paths of the others.
GraphicsPath& ScratchPath(Graphics& graphics) {
    GraphicsPath& path = graphics.scratch;
    path.verbs.clear();
    path.points.clear();
    path.open = false;
    path.winding = false;
    return path;
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

}  // namespace

Graphics GdipCreateGraphics(DrawList& list, float width, float height) {
    ClearList(list, width, height);
    return {.list = &list};
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
    const double angle = degrees * std::numbers::pi / 180;
    Prepend(graphics, {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0});
}

void GdipSetClipPath(Graphics& graphics, const GraphicsPath& path) {
    if (!Drawable(graphics, path)) return;
    GdipResetClip(graphics);
    graphics.list->primitives.emplace_back(ClipIn{Record(graphics, path)});
    graphics.clipped = true;
}

void GdipSetClipRectI(Graphics& graphics, int x, int y, int width, int height) {
    if (graphics.list == nullptr || width <= 0 || height <= 0) return;
    GraphicsPath& path = ScratchPath(graphics);
    AddRectangle(path, x, y, width, height);
    graphics.list->primitives.emplace_back(ClipOut{Record(graphics, path)});
    graphics.clipped = true;
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

namespace {

// Larger letters are an error of whoever computed them, and slow to paint.
bool IsReadable(float size, const LocalAxes& axes) {
    constexpr float kLargest = 2000, kMostLean = 50;
    return size > 0 && size * std::max(axes.stretch, 1.0f) <= kLargest && std::fabs(axes.skew) <= kMostLean;
}

// As many characters as fit into `width` ems, one at least.
std::string_view Fitting(std::string_view line, std::uint16_t family, float width) {
    std::size_t fits = std::min<std::size_t>(line.size(), 1);
    while (fits < line.size() && TextWidth(family, line.substr(0, fits + 1)) <= width) ++fits;
    return line.substr(0, fits);
}

// How a text is laid out in a rectangle `width` ems wide; 0 = without end.
struct LineLayout {
    std::uint16_t family;
    float width;
    bool wraps;  // else a line is cut at the last character that fits
};

// The characters of `text` that stand on the next line: up to a line feed, or as many words as fit. They are
// cut off its front.
std::string_view TakeLine(std::string_view& text, const LineLayout& layout) {
    std::string_view line = text.substr(0, text.find('\n'));
    const std::size_t to_line_feed = line.size();
    const bool too_wide = layout.width > 0 && TextWidth(layout.family, line) > layout.width;
    if (too_wide && layout.wraps) {
        std::size_t fits = 0;
        for (std::size_t i = 1; i <= line.size(); ++i) {
            if (i < line.size() && line[i] != ' ') continue;
            if (TextWidth(layout.family, line.substr(0, i)) > layout.width) break;
            fits = i;
        }
        // One word wider than the rectangle breaks where it must.
        line = fits > 0 ? line.substr(0, fits) : Fitting(line, layout.family, layout.width);
        text.remove_prefix(line.size());
    } else {
        if (too_wide) line = Fitting(line, layout.family, layout.width);
        text.remove_prefix(to_line_feed);
    }
    if (!text.empty() && (text.front() == '\n' || text.front() == ' ')) text.remove_prefix(1);
    return line;
}

}  // namespace

void GdipDrawString(Graphics& graphics, std::string_view text, const Font& font, const LayoutRect& rect,
                    const StringFormat* format, const Brush& brush) {
    if (graphics.list == nullptr || !(font.size > 0)) return;
    static constexpr StringFormat kDefault{};
    const StringFormat& layout = format != nullptr ? *format : kDefault;
    DrawList& list = *graphics.list;
    const FontMetrics& metrics = MetricsOf(font.family);
    const float padding = font.size / 6;
    const float room = rect.width > 0 ? std::max((rect.width - 2 * padding) / font.size, 0.01f) : 0;
    const LineLayout lines_of{font.family, room, (layout.flags & kFormatNoWrap) == 0};

    int lines = 0;
    for (std::string_view rest = text; !rest.empty(); ++lines) TakeLine(rest, lines_of);
    const float height = static_cast<float>(lines) * metrics.line_spacing * font.size;
    float top = rect.y;
    if (layout.line_align == LineAlign::kCenter) top += (rect.height - height) / 2;
    if (layout.line_align == LineAlign::kFar) top += rect.height - height;

    const Growth growth = GrowthOf(graphics.world);
    const auto size = static_cast<float>(font.size * growth.height);
    if (!IsReadable(size, growth.axes)) return;
    while (!text.empty()) {
        const std::string_view line = TakeLine(text, lines_of);
        if (rect.height > 0 && (layout.flags & kFormatNoClip) == 0 && top >= rect.y + rect.height) break;
        float left = rect.x + padding;
        if ((layout.flags & kFormatRightToLeft) != 0)
            left = rect.x + rect.width - padding - TextWidth(font.family, line) * font.size;
        const PaintPoint origin = Map(graphics.world, left, top + metrics.ascent * font.size);
        if (!line.empty() && IsNear(origin)) {
            const std::size_t first = list.text.size();
            AppendUtf8(list.text, line);
            list.primitives.emplace_back(TextRun{origin.x, origin.y, size, growth.axes, font.family,
                                                 brush.colour, Extend(first, list.text.size())});
        }
        top += metrics.line_spacing * font.size;
    }
}

namespace {

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
    list.primitives.emplace_back(DrawnImage{Extend(first, list.text.size()), origin.x, origin.y, size.x,
                                            size.y, growth.axes.rotation});
}

}  // namespace

void GdipDrawImageI(Graphics& graphics, const Image& image, int x, int y) {
    DrawImage(graphics, image, x, y, image.width * kScreenDensity / image.density.x,
              image.height * kScreenDensity / image.density.y);
}

void GdipDrawImageRectI(Graphics& graphics, const Image& image, int x, int y, int width, int height) {
    DrawImage(graphics, image, x, y, width, height);
}
