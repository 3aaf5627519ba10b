#pragma once

#include "paint/graphics.h"

/// The altitude tape at the right, with ground, trend, bug and pointer.
void DrawHudAltitude(Graphics& graphics);
/// Selected altitude, altimeter setting and vertical speed about it.
void DrawHudAltitudeReadouts(Graphics& graphics);
