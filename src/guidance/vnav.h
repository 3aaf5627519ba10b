#pragma once

// The vertical path as it is flown: when the tops are passed, which fix is next to be made, how far off the
// path the aircraft is. It goes on with VNAV off; only the speed targets (vnav_speed.h) ask whether it is
// engaged.

/// One guidance pass: distances to go and the approach's radio, and with a cruise altitude the vertical path.
/// Nothing happens without a plan.
void VnavUpdate();
