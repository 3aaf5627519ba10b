#pragma once

#include "paint/graphics.h"

/// The scales at the right and below, as the primary flight display has them.
void DrawHudDeviations(Graphics& graphics);
