#include "paint/path_builder.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"

GraphicsPath& Emptied(GraphicsPath& path) {
    path.verbs.clear();
    path.points.clear();
    path.winding = path.open = false;
    return path;
}

namespace {

constexpr double kQuarterArc = 0.5522847498307936;  // control length of a quarter circle, 4/3 tan(pi/8)

// The angle on the ellipse's circle that shows as `degrees` on the ellipse.
double CircleAngle(double degrees, double rx, double ry) {
    const double angle = degrees * kRadPerDeg;
    const double c = std::cos(angle), s = std::sin(angle);
    if (std::fabs(c) < 1e-5 || std::fabs(s) < 1e-5) return angle;
    const double stretched = std::atan2(s / ry, c / rx);
    const double turn = 2 * kPi;
    return stretched + (std::round(angle / turn) - std::round(stretched / turn)) * turn;
}

float Distance(PaintPoint a, PaintPoint b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

}  // namespace

void MoveTo(GraphicsPath& path, double x, double y) {
    path.verbs.push_back(PathVerb::kMove);
    path.points.push_back(At(x, y));
    path.open = true;
}

void LineTo(GraphicsPath& path, double x, double y) {
    if (!path.open) return MoveTo(path, x, y);
    path.verbs.push_back(PathVerb::kLine);
    path.points.push_back(At(x, y));
}

void CurveTo(GraphicsPath& path, PaintPoint control1, PaintPoint control2, PaintPoint end) {
    path.verbs.push_back(PathVerb::kCubic);
    path.points.insert(path.points.end(), {control1, control2, end});
}

void ClosePath(GraphicsPath& path) {
    if (path.open) path.verbs.push_back(PathVerb::kClose);
    path.open = false;
}

void AddPolyline(GraphicsPath& path, std::span<const PaintPoint> points, bool closed) {
    for (const PaintPoint& point : points) LineTo(path, point.x, point.y);
    if (closed) ClosePath(path);
}

void AddRectangle(GraphicsPath& path, double x, double y, double width, double height) {
    path.open = false;
    MoveTo(path, x, y);
    LineTo(path, x + width, y);
    LineTo(path, x + width, y + height);
    LineTo(path, x, y + height);
    ClosePath(path);
}

void AddEllipse(GraphicsPath& path, double x, double y, double width, double height) {
    const double rx = width / 2, ry = height / 2, cx = x + rx, cy = y + ry;
    path.open = false;
    MoveTo(path, cx + rx, cy);
    double ux = 1, uy = 0;  // where the quarter begins on the unit circle
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double vx = -uy, vy = ux;
        CurveTo(path, At(cx + rx * (ux + kQuarterArc * vx), cy + ry * (uy + kQuarterArc * vy)),
                At(cx + rx * (vx + kQuarterArc * ux), cy + ry * (vy + kQuarterArc * uy)),
                At(cx + rx * vx, cy + ry * vy));
        ux = vx;
        uy = vy;
    }
    ClosePath(path);
}

void AddArc(GraphicsPath& path, double x, double y, double width, double height, double start, double sweep) {
    if (!(width > 0 && height > 0) || !std::isfinite(start) || !std::isfinite(sweep)) return;
    start = std::fmod(start, 360);
    sweep = std::clamp(sweep, -360.0, 360.0);
    const double rx = width / 2, ry = height / 2, cx = x + rx, cy = y + ry;
    const double first = CircleAngle(start, rx, ry), last = CircleAngle(start + sweep, rx, ry);
    const int parts =
        std::max(1, static_cast<int>(std::ceil(std::fabs(last - first) / (90 * kRadPerDeg) - 1e-9)));
    const double step = (last - first) / parts;
    const double control = 4.0 / 3 * std::tan(step / 4);
    LineTo(path, cx + rx * std::cos(first), cy + ry * std::sin(first));
    for (int i = 0; i < parts; ++i) {
        const double a = first + step * i, b = a + step;
        CurveTo(path,
                At(cx + rx * (std::cos(a) - control * std::sin(a)),
                   cy + ry * (std::sin(a) + control * std::cos(a))),
                At(cx + rx * (std::cos(b) + control * std::sin(b)),
                   cy + ry * (std::sin(b) - control * std::cos(b))),
                At(cx + rx * std::cos(b), cy + ry * std::sin(b)));
    }
}

void AddPie(GraphicsPath& path, double x, double y, double width, double height, double start, double sweep) {
    path.open = false;
    MoveTo(path, x + width / 2, y + height / 2);
    AddArc(path, x, y, width, height, start, sweep);
    ClosePath(path);
}

void AddCardinalSpline(GraphicsPath& path, std::span<const PaintPoint> points, bool closed) {
    const auto count = static_cast<int>(points.size());
    if (count < 2) return;
    const auto point = [&](int i) {
        if (closed) return points[static_cast<std::size_t>((i + count) % count)];
        return points[static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    constexpr double kThird = 0.5 / 3;  // tension over the three parts of a curve's control polygon
    path.open = false;
    MoveTo(path, points[0].x, points[0].y);
    for (int i = 0; i < (closed ? count : count - 1); ++i) {
        const PaintPoint before = point(i - 1), from = point(i), to = point(i + 1), after = point(i + 2);
        CurveTo(path, At(from.x + kThird * (to.x - before.x), from.y + kThird * (to.y - before.y)),
                At(to.x - kThird * (after.x - from.x), to.y - kThird * (after.y - from.y)), to);
    }
    if (closed) ClosePath(path);
}

const GraphicsPath& Flatten(FigureRoom& room, const GraphicsPath& path, double tolerance) {
    GraphicsPath& flat = Emptied(room.flat);
    flat.winding = path.winding;
    std::size_t next = 0;
    PaintPoint at{};
    for (const PathVerb verb : path.verbs) {
        switch (verb) {
            case PathVerb::kMove:
                at = path.points[next++];
                flat.open = false;
                MoveTo(flat, at.x, at.y);
                break;
            case PathVerb::kLine:
                at = path.points[next++];
                LineTo(flat, at.x, at.y);
                break;
            case PathVerb::kCubic: {
                const PaintPoint c1 = path.points[next], c2 = path.points[next + 1],
                                 end = path.points[next + 2];
                next += 3;
                const double length = Distance(at, c1) + Distance(c1, c2) + Distance(c2, end);
                const auto parts =
                    static_cast<int>(std::clamp(std::sqrt(length / (4 * tolerance)) + 1, 2.0, 64.0));
                for (int i = 1; i <= parts; ++i) {
                    const double t = static_cast<double>(i) / parts, u = 1 - t;
                    const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
                    LineTo(flat, a * at.x + b * c1.x + c * c2.x + d * end.x,
                           a * at.y + b * c1.y + c * c2.y + d * end.y);
                }
                at = end;
                break;
            }
            case PathVerb::kClose:
                ClosePath(flat);
                break;
        }
    }
    return flat;
}

namespace {

// One figure of lines moved sideways, into room.drawn.
void OffsetFigure(FigureRoom& room, std::span<const PaintPoint> given, bool closed, double offset) {
    GraphicsPath& to = room.drawn;
    std::vector<PaintPoint>& points = room.corners;
    points.clear();
    for (const PaintPoint& point : given)
        if (points.empty() || Distance(points.back(), point) > 1e-4f) points.push_back(point);
    if (closed && points.size() > 2 && Distance(points.front(), points.back()) <= 1e-4f) points.pop_back();
    const auto count = static_cast<int>(points.size());
    if (count < 2) return;
    const auto normal = [&](int i) {  // right of the line from point i, y down
        const PaintPoint a = points[static_cast<std::size_t>(i % count)],
                         b = points[static_cast<std::size_t>((i + 1) % count)];
        const float length = Distance(a, b);
        return PaintPoint{-(b.y - a.y) / length, (b.x - a.x) / length};
    };
    to.open = false;
    for (int i = 0; i < count; ++i) {
        const bool first = !closed && i == 0, last = !closed && i == count - 1;
        const PaintPoint in = first ? normal(0) : normal(i + count - 1), out = last ? in : normal(i);
        // Along the halved angle, so far that both lines keep their distance; a sharp corner is cut at 4.
        const double cosine = in.x * out.x + in.y * out.y;
        const double scale = offset / std::max(0.25, 1 + (first || last ? 1 : cosine));
        const double nx = first ? 2 * out.x : in.x + out.x, ny = first ? 2 * out.y : in.y + out.y;
        LineTo(to, points[static_cast<std::size_t>(i)].x + nx * scale,
               points[static_cast<std::size_t>(i)].y + ny * scale);
    }
    if (closed) ClosePath(to);
}

}  // namespace

const GraphicsPath& OffsetPath(FigureRoom& room, const GraphicsPath& path, double offset) {
    const GraphicsPath& flat = Flatten(room, path, 0.1);
    Emptied(room.drawn);
    std::size_t first = 0, next = 0;
    const auto end_figure = [&](bool closed) {
        OffsetFigure(room, std::span(flat.points).subspan(first, next - first), closed, offset);
        first = next;
    };
    for (const PathVerb verb : flat.verbs) {
        if (verb == PathVerb::kMove && next > first) end_figure(false);
        if (verb == PathVerb::kClose)
            end_figure(true);
        else
            ++next;
    }
    if (next > first) end_figure(false);
    return room.drawn;
}
