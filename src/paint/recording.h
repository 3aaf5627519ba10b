#pragma once

#include <cstddef>
#include <utility>
#include <variant>

#include "paint/graphics_types.h"

// How the drawing operations put on the list what they draw: mapped by the world transform, and only what can
// be painted.

/// Coordinates and widths beyond this are errors of whoever computed them, and too large for those who paint.
constexpr float kFarthest = 1e6f;

inline PaintPoint Map(const Matrix& m, double x, double y) {
    return {static_cast<float>(m.a * x + m.c * y + m.e), static_cast<float>(m.b * x + m.d * y + m.f)};
}

/// False for a coordinate that is no number, too.
inline bool IsNear(PaintPoint p) {
    return p.x >= -kFarthest && p.x <= kFarthest && p.y >= -kFarthest && p.y <= kFarthest;
}

/// An empty path for one figure or clip, good until the next is made; its storage stays.
GraphicsPath& ScratchPath(Graphics& graphics);

/// How much a height grows under a transform, and the axes that stand for the rest of it.
struct Growth {
    double height;
    LocalAxes axes;
};
Growth GrowthOf(const Matrix& m);

/// A stretch of one of the list's arrays, from a first place to behind its last.
PaintRange RangeOf(std::size_t first, std::size_t end);

/// There is a list, and the path has points for a figure, all near.
bool IsDrawable(const Graphics& graphics, const GraphicsPath& path);

/// A further primitive, to be filled in where it stands: to put it together elsewhere and copy it costs as
/// much as all the rest.
template <class P>
P& AddPrimitive(DrawList& list) {
    return std::get<P>(list.primitives.emplace_back(std::in_place_type<P>));
}

/// Puts a path into the list's arrays and tells where; false, and nothing recorded, for one that isn't
/// drawable.
bool RecordPath(Graphics& graphics, const GraphicsPath& path, PaintPath& recorded);
/// The same with a primitive for the path; null when nothing is recorded, or there is no list.
template <class P>
P* AddPathPrimitive(Graphics& graphics, const GraphicsPath& path) {
    if (graphics.list == nullptr) return nullptr;
    P& primitive = AddPrimitive<P>(*graphics.list);
    if (RecordPath(graphics, path, primitive.path)) return &primitive;
    graphics.list->primitives.pop_back();
    return nullptr;
}

/// Fills a path with one colour; nothing with one that can't be seen, or when the path isn't drawable.
void RecordFill(Graphics& graphics, const GraphicsPath& path, Argb colour);
