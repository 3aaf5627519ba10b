#pragma once

/// Steps what the primary flight displays remember from picture to picture: the director's smoothed pitch,
/// the boxes around what is new, the preset of the altimeter, the take-off speeds, the alert at the minimums.
/// Once a tick: a picture itself changes nothing.
void StepPfdMemory();
