#pragma once

#include "paint/graphics.h"

/// The standby instrument, 100 by 92: attitude, heading, speed, altitude and an approach, at a brightness of
/// its own.
void DrawStandbyPfd(Graphics& graphics);
