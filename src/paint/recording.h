#pragma once

#include <cstddef>

#include "paint/graphics_types.h"

// How the drawing operations put on the list what they draw: mapped by the world transform, and only what can
// be painted.

/// Coordinates and widths beyond this are errors of whoever computed them, and too large for those who paint.
constexpr float kFarthest = 1e6f;

PaintPoint Map(const Matrix& m, double x, double y);

/// False for a coordinate that is no number, too.
bool IsNear(PaintPoint p);

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

/// Puts the path, which is drawable, into the list's arrays.
PaintPath RecordPath(Graphics& graphics, const GraphicsPath& path);

/// Fills the path, which is drawable, with one colour; nothing with one that can't be seen.
void RecordFill(Graphics& graphics, const GraphicsPath& path, Argb colour);
