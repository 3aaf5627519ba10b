#include "paint/fill.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "paint/path_builder.h"
#include "paint/recording.h"
#include "paint/stroke.h"

namespace {

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
    FigureRoom& room = graphics.room;
    const GraphicsPath& flat = Flatten(room, path, 0.25);
    std::vector<PaintPoint>& corners = room.corners;
    corners.clear();
    for (const PaintPoint& given : flat.points) {
        const PaintPoint p = Map(graphics.world, given.x, given.y);
        corners.push_back({p.x - kLineShift, p.y - kLineShift});
    }
    const float reach = graphics.list->width + graphics.list->height;
    GraphicsPath& stretches = Emptied(room.drawn);
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
            AddHatchLine(stretches, lines, value, flat, corners, room.crossings);
    }
    if (stretches.verbs.empty()) return;
    const Matrix world = graphics.world;
    graphics.world = {};
    Stroke(graphics, {.colour = brush.colour, .width = 1}, stretches);
    graphics.world = world;
}

}  // namespace

void Fill(Graphics& graphics, const Brush& brush, const GraphicsPath& path) {
    RecordFill(graphics, path, brush.hatched ? brush.back : brush.colour);
    if (brush.hatched && IsDrawable(graphics, path)) FillHatch(graphics, brush, path);
}
