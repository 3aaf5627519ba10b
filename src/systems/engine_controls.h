#pragma once

// The fuel controls and fire handles of the engines, 1 left and 2 right.

/// A click on a fuel control: from run to cut-off or back. The host's own control goes along.
void ToggleFuelControl(int engine);

/// The fire handle has been looked at: pulled, it cuts the fuel of a running engine.
void FollowFireHandle(int engine);

/// A control at cut-off whose engine has fuel in the host goes to run; once a second.
void FollowHostFuel();
