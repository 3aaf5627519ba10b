#pragma once

#include "paint/graphics_types.h"

/// Draws a path's outline: once, in the strips of a compound pen, or with the pen's arrow at its end. Nothing
/// for a path that can't be drawn and a width below 0.
void Stroke(Graphics& graphics, const Pen& pen, const GraphicsPath& path);
