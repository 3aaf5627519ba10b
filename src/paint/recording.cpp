#include "paint/recording.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "paint/path_builder.h"

Growth GrowthOf(const Matrix& m) {
    constexpr double kNothing = 1e-12;
    if (m.b == 0 && m.c == 0 && m.a > 0 && m.d > kNothing)
        return {m.d, {0, static_cast<float>(m.a / m.d), 0}};
    const double run = std::hypot(m.a, m.b);
    const double height = run > kNothing ? std::fabs(m.a * m.d - m.b * m.c) / run : 0;
    if (height <= kNothing) return {height, {}};
    const double slant = (m.a * m.c + m.b * m.d) / run;
    return {height,
            {static_cast<float>(std::atan2(m.b, m.a) * kDegPerRad), static_cast<float>(run / height),
             static_cast<float>(slant / height)}};
}

GraphicsPath& ScratchPath(Graphics& graphics) {
    return Emptied(graphics.room.figure);
}

PaintRange RangeOf(std::size_t first, std::size_t end) {
    return {static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(end - first)};
}

bool IsDrawable(const Graphics& graphics, const GraphicsPath& path) {
    return graphics.list != nullptr && path.points.size() > 1 &&
           std::ranges::all_of(path.points,
                               [&](PaintPoint p) { return IsNear(Map(graphics.world, p.x, p.y)); });
}

bool RecordPath(Graphics& graphics, const GraphicsPath& path, PaintPath& recorded) {
    if (path.points.size() < 2) return false;
    DrawList& list = *graphics.list;
    const std::size_t verbs = list.verbs.size(), points = list.points.size();
    list.points.resize(points + path.points.size());
    const Matrix world = graphics.world;
    PaintPoint* mapped = list.points.data() + points;
    bool is_near = true;
    for (const PaintPoint& point : path.points) {
        *mapped = Map(world, point.x, point.y);
        is_near &= IsNear(*mapped++);
    }
    if (!is_near) {
        list.points.resize(points);
        return false;
    }
    list.verbs.insert(list.verbs.end(), path.verbs.begin(), path.verbs.end());
    recorded.verbs = RangeOf(verbs, list.verbs.size());
    recorded.points = RangeOf(points, list.points.size());
    recorded.winding = path.winding;
    return true;
}

void RecordFill(Graphics& graphics, const GraphicsPath& path, Argb colour) {
    if (colour >> 24 == 0) return;
    if (FillPath* fill = AddPathPrimitive<FillPath>(graphics, path)) fill->colour = colour;
}
