#pragma once

/// The IRS knob of a side (kCaptain left, kFirstOfficer right) has been turned: on starts the alignment, off
/// ends it and the aligned state at once.
void FollowIrsKnob(int side);

/// One tick of the alignment timers; they run in pause too. Position and movement don't matter.
void StepIrs();
