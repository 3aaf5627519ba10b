#pragma once

#include "paint/graphics.h"

// The attitude as it lies over the outside world, about the middle of the attitude.

/// Units of a degree of pitch: as large as the world within 7 degrees, smaller beyond.
double HudUnitsPerDegree();

/// Horizon with heading scale and selected heading, pitch ladder, and the way back from an unusual pitch.
void DrawHudLadder(Graphics& graphics);
void DrawHudAircraft(Graphics& graphics);
void DrawHudBankScale(Graphics& graphics);
