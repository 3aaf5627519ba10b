#include "paint/stroke.h"

#include <algorithm>
#include <cmath>

#include "paint/path_builder.h"
#include "paint/recording.h"

namespace {

// Turned, mirrored or scaled alike both ways, a pen stays round.
Growth GrowthOfPen(const Matrix& m) {
    const double run = m.a * m.a + m.b * m.b, rise = m.c * m.c + m.d * m.d;
    const bool stays_round =
        std::fabs(run - rise) <= 1e-4 * run && std::fabs(m.a * m.c + m.b * m.d) <= 1e-4 * run;
    if (!stays_round) return GrowthOf(m);
    return {run == 1 ? 1 : std::sqrt(run), {}};
}

void StrokeOnce(Graphics& graphics, const Pen& pen, const GraphicsPath& path, double width) {
    StrokePath* const added = AddPathPrimitive<StrokePath>(graphics, path);
    if (added == nullptr) return;
    StrokePath& stroke = *added;
    DrawList& list = *graphics.list;
    const Growth growth = GrowthOfPen(graphics.world);
    constexpr float kThinnest = 1;  // below it a pen is a line of one pixel, and its dashes count in these
    const auto scale = static_cast<float>(growth.height);
    const std::size_t dashes = list.dashes.size();
    const float dash_unit = std::max(pen.width * scale, kThinnest);
    for (const float dash : pen.dashes.All()) list.dashes.push_back(dash * dash_unit);
    stroke.colour = pen.colour;
    stroke.width = static_cast<float>(width) * scale;
    stroke.dashes = RangeOf(dashes, list.dashes.size());
    if (stroke.width * std::max(growth.axes.stretch, 1.0f) > kThinnest) stroke.axes = growth.axes;
}

// The arrow at the end of a path's last line; the line is cut back to the arrow's base, so that its tip is
// sharp.
void DrawWithArrow(Graphics& graphics, const Pen& pen, const GraphicsPath& path) {
    Flatten(graphics.room, path, 0.1);
    GraphicsPath& line = graphics.room.flat;
    const std::size_t count = line.points.size();
    if (line.verbs.back() == PathVerb::kClose || count < 2) return StrokeOnce(graphics, pen, path, pen.width);
    const PaintPoint tip = line.points[count - 1], before = line.points[count - 2];
    const double dx = tip.x - before.x, dy = tip.y - before.y, length = std::hypot(dx, dy);
    if (length == 0) return StrokeOnce(graphics, pen, path, pen.width);
    const double ux = dx / length, uy = dy / length;
    const double height = pen.end_cap.height * pen.width, half = pen.end_cap.width * pen.width / 2;
    const PaintPoint base{static_cast<float>(tip.x - ux * height), static_cast<float>(tip.y - uy * height)};
    GraphicsPath& head = Emptied(graphics.room.drawn);
    MoveTo(head, base.x - uy * half, base.y + ux * half);
    LineTo(head, tip.x, tip.y);
    LineTo(head, base.x + uy * half, base.y - ux * half);
    if (!pen.end_cap.filled) {
        StrokeOnce(graphics, pen, line, pen.width);
        return StrokeOnce(graphics, {.colour = pen.colour, .width = pen.width}, head, pen.width);
    }
    ClosePath(head);
    if (length > height) {
        line.points[count - 1] = base;
        StrokeOnce(graphics, pen, line, pen.width);
    }
    RecordFill(graphics, head, pen.colour);
}

}  // namespace

void Stroke(Graphics& graphics, const Pen& pen, const GraphicsPath& path) {
    if (!(pen.width >= 0 && pen.width <= kFarthest)) return;
    if (pen.compound.count < 2 && !(pen.end_cap.height > 0))
        return StrokeOnce(graphics, pen, path, pen.width);
    if (!IsDrawable(graphics, path)) return;
    if (pen.compound.count >= 2) {
        for (std::size_t i = 0; i + 1 < pen.compound.count; i += 2) {
            const double from = pen.compound.values[i], to = pen.compound.values[i + 1];
            if (to <= from) continue;
            StrokeOnce(graphics, pen, OffsetPath(graphics.room, path, ((from + to) / 2 - 0.5) * pen.width),
                       (to - from) * pen.width);
        }
    } else {
        DrawWithArrow(graphics, pen, path);
    }
}
