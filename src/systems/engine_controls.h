#pragma once

// The fuel controls and fire handles of the engines, 1 left and 2 right.

/// A click on a fuel control: from run to cut-off or back. The host's own control goes along.
void ToggleFuelControl(int engine);

/// The fire handle has been looked at: pulled, it cuts the fuel of a running engine.
void FollowFireHandle(int engine);

/// With the first engine the host's pitot heat comes on, with the last it goes off; once a second.
void HeatPitotsWithEngines();

/// A control at cut-off whose engine has fuel in the host goes to run; once a second.
void FollowHostFuel();
