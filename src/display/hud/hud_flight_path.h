#pragma once

#include "paint/graphics.h"

/// Where the aircraft is going, with all that hangs on that: speed error and acceleration, limits of pitch,
/// the director's cue, the reference line of an approach. Above taxi speed only.
void DrawHudFlightPath(Graphics& graphics);
/// The height above ground, below the flight path symbol, boxed on the way to the minimums.
void DrawHudRadioAltitude(Graphics& graphics);
