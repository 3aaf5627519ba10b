#pragma once

// The six boost pumps as pressure ramps, and the crossfeed valve.

/// One tick of the ramps and of the valve's travel.
void StepFuelPumps();

/// The crossfeed button has been pressed: its lamp burns while the valve moves.
void FollowCrossfeed(int before);
