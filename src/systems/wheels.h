#pragma once

// Landing gear and brakes.

/// The gear can't be up on the ground, wherever the lever of the model stands.
void CheckGearLever();

/// Positions of the autobrake selector, which is the model's own: RTO, OFF, DISARM, 2 to 5 for 1 to 4, MAX.
constexpr int kAutobrakeRto = -1, kAutobrakeMax = 6;

void ReadAutobrake();
/// Turns the selector by steps; it stops at its ends.
void TurnAutobrake(int steps);
