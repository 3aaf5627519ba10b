#include "paint/graphics.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "paint/fonts.h"
#include "paint/path_builder.h"

namespace {

PaintPoint Map(const Matrix& m, double x, double y) {
    return {static_cast<float>(m.a * x + m.c * y + m.e), static_cast<float>(m.b * x + m.d * y + m.f)};
}

// How much a length grows under the transform.
double ScaleOf(const Matrix& m) {
    return std::sqrt(std::fabs(m.a * m.d - m.b * m.c));
}

double RotationOf(const Matrix& m) {
    return std::atan2(m.b, m.a) * 180 / std::numbers::pi;
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

bool Drawable(const Graphics& graphics, const GraphicsPath& path) {
    return graphics.list != nullptr && path.points.size() > 1;
}

void StrokeOnce(Graphics& graphics, const Pen& pen, const GraphicsPath& path, double width) {
    DrawList& list = *graphics.list;
    const auto scale = static_cast<float>(ScaleOf(graphics.world));
    const std::size_t dashes = list.dashes.size();
    for (const float dash : pen.dashes.All()) list.dashes.push_back(dash * pen.width * scale);
    StrokePath stroke{Record(graphics, path), pen.colour, static_cast<float>(width) * scale};
    stroke.dashes = Extend(dashes, list.dashes.size());
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
    if (!Drawable(graphics, path) || !(pen.width >= 0)) return;
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

struct HatchCell {
    std::uint8_t rows[8];  // the top bit is the left pixel
};

// The 8 by 8 cells of the styles, one bit a device pixel.
constexpr HatchCell kHatchCells[] = {
    {{0xff, 0, 0, 0, 0, 0, 0, 0}},
    {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80}},
    {{0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01}},
    {{0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80}},
    {{0xff, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80}},
    {{0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81}},
};

// The hatch of a path as fills of unit squares' runs that lie within its box and whose middle lies in the
// path.
void FillHatch(Graphics& graphics, const Brush& brush, const GraphicsPath& path) {
    const GraphicsPath flat = Flatten(path, 0.25);
    std::vector<PaintPoint> corners;
    for (const PaintPoint& point : flat.points) corners.push_back(Map(graphics.world, point.x, point.y));
    float left = corners[0].x, right = left, top = corners[0].y, bottom = top;
    for (const PaintPoint& p : corners) {
        left = std::min(left, p.x), right = std::max(right, p.x);
        top = std::min(top, p.y), bottom = std::max(bottom, p.y);
    }
    left = std::max(left, 0.0f), top = std::max(top, 0.0f);
    right = std::min(right, graphics.list->width), bottom = std::min(bottom, graphics.list->height);
    const HatchCell& cell = kHatchCells[static_cast<std::size_t>(brush.hatch)];
    GraphicsPath dots;
    std::vector<float> crossings;
    for (int y = static_cast<int>(std::floor(top)); static_cast<float>(y) < bottom; ++y) {
        const float middle = static_cast<float>(y) + 0.5f;
        crossings.clear();
        std::size_t first = 0, next = 0;
        for (const PathVerb verb : flat.verbs) {
            if (verb == PathVerb::kMove) first = next;
            const std::size_t from = next - 1;
            const std::size_t to = verb == PathVerb::kClose ? first : next;
            if (verb != PathVerb::kClose) ++next;
            if (verb == PathVerb::kMove) continue;
            const PaintPoint a = corners[from], b = corners[to];
            if ((a.y <= middle) == (b.y <= middle)) continue;
            crossings.push_back(a.x + (middle - a.y) / (b.y - a.y) * (b.x - a.x));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            const int end = static_cast<int>(std::floor(std::min(crossings[i + 1], right) - 0.5f));
            int x = static_cast<int>(std::ceil(std::max(crossings[i], left) - 0.5f));
            for (; x <= end; ++x) {
                const auto row = cell.rows[static_cast<std::size_t>(y & 7)];
                if ((row >> (7 - (x & 7)) & 1) == 0) continue;
                const int run = x;
                while (x + 1 <= end && (row >> (7 - ((x + 1) & 7)) & 1) != 0) ++x;
                AddRectangle(dots, run, y, x + 1 - run, 1);
            }
        }
    }
    if (dots.verbs.empty()) return;
    const Matrix world = graphics.world;
    graphics.world = {};
    const PaintPath recorded = Record(graphics, dots);
    graphics.world = world;
    graphics.list->primitives.emplace_back(FillPath{recorded, brush.colour});
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

Pen GdipCreatePen1(Argb colour, float width) {
    return {.colour = colour, .width = width};
}

void GdipSetPenDashStyle(Pen& pen, int style) {
    static constexpr float kDash[] = {3, 1}, kDot[] = {1, 1}, kDashDot[] = {3, 1, 1, 1},
                           kDashDotDot[] = {3, 1, 1, 1, 1, 1};
    constexpr std::span<const float> kStyles[] = {{}, kDash, kDot, kDashDot, kDashDotDot};
    if (style >= 0 && style < static_cast<int>(std::size(kStyles)))
        SetNumbers(pen.dashes, kStyles[static_cast<std::size_t>(style)]);
}

void GdipSetPenDashArray(Pen& pen, std::span<const float> dashes) {
    SetNumbers(pen.dashes, dashes);
}
void GdipSetPenCompoundArray(Pen& pen, std::span<const float> edges) {
    SetNumbers(pen.compound, edges);
}
LineArrowCap GdipCreateAdjustableArrowCap(float height, float width, bool filled) {
    return {height, width, filled};
}
void GdipSetPenCustomEndCap(Pen& pen, LineArrowCap cap) {
    pen.end_cap = cap;
}
Brush GdipCreateSolidFill(Argb colour) {
    return {.colour = colour};
}
Brush GdipCreateHatchBrush(HatchStyle style, Argb fore, Argb back) {
    return {fore, true, style, back};
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

Font GdipCreateFont(std::uint16_t family, float size) {
    return {family, size};
}
StringFormat GdipCreateStringFormat(int flags) {
    return {.flags = flags};
}
void GdipSetStringFormatFlags(StringFormat& format, int flags) {
    format.flags = flags;
}
void GdipSetStringFormatLineAlign(StringFormat& format, LineAlign align) {
    format.line_align = align;
}

namespace {

// The characters of `text` that stand on the next line: up to a line feed, or as many words as fit into
// `width` ems (0 = any number). What is taken is cut off the front.
std::string_view TakeLine(std::string_view& text, std::uint16_t family, float width) {
    std::string_view line = text.substr(0, text.find('\n'));
    if (width > 0 && TextWidth(family, line) > width) {
        std::size_t fits = 0;
        for (std::size_t i = 1; i <= line.size(); ++i) {
            if (i < line.size() && line[i] != ' ') continue;
            if (TextWidth(family, line.substr(0, i)) > width) break;
            fits = i;
        }
        if (fits == 0) {  // one word wider than the rectangle breaks where it must
            while (fits < line.size() && TextWidth(family, line.substr(0, fits + 1)) <= width) ++fits;
            fits = std::max<std::size_t>(fits, 1);
        }
        line = line.substr(0, fits);
    }
    text.remove_prefix(line.size());
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
    const bool wraps = rect.width > 0 && (layout.flags & kFormatNoWrap) == 0;
    const float room = wraps ? std::max((rect.width - 2 * padding) / font.size, 0.01f) : 0;

    int lines = 0;
    for (std::string_view rest = text; !rest.empty(); ++lines) TakeLine(rest, font.family, room);
    const float height = static_cast<float>(lines) * metrics.line_spacing * font.size;
    float top = rect.y;
    if (layout.line_align == LineAlign::kCenter) top += (rect.height - height) / 2;
    if (layout.line_align == LineAlign::kFar) top += rect.height - height;

    const Matrix& w = graphics.world;
    const double rise = std::hypot(w.c, w.d), run = std::hypot(w.a, w.b);
    while (!text.empty()) {
        const std::string_view line = TakeLine(text, font.family, room);
        if (rect.height > 0 && (layout.flags & kFormatNoClip) == 0 && top >= rect.y + rect.height) break;
        float left = rect.x + padding;
        if ((layout.flags & kFormatRightToLeft) != 0)
            left = rect.x + rect.width - padding - TextWidth(font.family, line) * font.size;
        const PaintPoint origin = Map(w, left, top + metrics.ascent * font.size);
        const std::size_t first = list.text.size();
        AppendUtf8(list.text, line);
        if (!line.empty())
            list.primitives.emplace_back(TextRun{origin.x, origin.y, static_cast<float>(font.size * rise),
                                                 static_cast<float>(RotationOf(w)),
                                                 static_cast<float>(rise > 0 ? run / rise : 1), font.family,
                                                 brush.colour, Extend(first, list.text.size())});
        top += metrics.line_spacing * font.size;
    }
}

void GdipDrawImageRectI(Graphics& graphics, std::string_view file, int x, int y, int width, int height) {
    if (graphics.list == nullptr || file.empty() || width <= 0 || height <= 0) return;
    DrawList& list = *graphics.list;
    const std::size_t first = list.text.size();
    list.text += file;
    const PaintPoint origin = Map(graphics.world, x, y);
    const Matrix& w = graphics.world;
    list.primitives.emplace_back(DrawnImage{
        Extend(first, list.text.size()), origin.x, origin.y, static_cast<float>(width * std::hypot(w.a, w.b)),
        static_cast<float>(height * std::hypot(w.c, w.d)), static_cast<float>(RotationOf(w))});
}
