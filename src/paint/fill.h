#pragma once

#include "paint/graphics_types.h"

/// Fills a path with a colour or a hatch; nothing for one that can't be drawn.
void Fill(Graphics& graphics, const Brush& brush, const GraphicsPath& path);
