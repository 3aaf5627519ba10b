#pragma once

// The arm switches of the autothrottle. AutoflightLogic reads them as named variables.

/// A click on one moves both. With the settings RealismMode and LnavDefAp they go where the host's own switch
/// stands, and the host is told.
void SwitchAutothrottleArms();

void DisarmAutothrottle();

/// In realism mode the host's autothrottle, once disarmed, is disarmed for good.
void FollowAutothrottleArm();
