#pragma once

#include "paint/graphics.h"

/// The speed tape at the left, with its limits, bugs and marks.
void DrawHudSpeed(Graphics& graphics);
/// The selected speed, ground speed or Mach number about it.
void DrawHudSpeedReadouts(Graphics& graphics);
