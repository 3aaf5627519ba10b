#pragma once

/// Whether the speed for flaps 30, the usual landing, is taken for at most the heaviest landing weight.
enum class LandingWeight { kPresent, kLimited };

/// Computes each of the approach reference speeds (kt) for flaps 20, 25 and 30 that is still 0: that of the
/// nearest weight of its table, for the weight entered on APPROACH REF or else the present gross weight.
void FillApproachSpeeds(LandingWeight limit);

/// The approach reference speed for flaps 20, 25 or 30 (another counts as 30) at a gross weight in pounds.
double ApproachSpeed(int flaps, double weight, LandingWeight limit);
