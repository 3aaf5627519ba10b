#pragma once

#include "display/pfd/pfd_view.h"

// The attitude: sky and ground with the pitch ladder, what stands fixed before them, and the flight path
// vector.

/// Sky, ground and ladder; without an aligned inertial unit, or before the display has come up, a flag.
void DrawSphere(const PfdView& view);
/// How far the nose may rise before the stall; with flaps out only.
void DrawPitchLimit(const PfdView& view);
void DrawAircraftSymbol(const PfdView& view);
/// The pointer with the slip bar, and the scale that it moves on.
void DrawBankScale(const PfdView& view);
/// The pitch between which a resolution advisory keeps.
void DrawAdvisoryPitch(const PfdView& view);
/// Degrees by which the aircraft climbs, and by which its track lies right of the nose.
double ClimbAngle();
double TrackOffset();
/// Where the aircraft is going, blinking at the edge when that is out of sight.
void DrawFlightPathVector(const PfdView& view);
