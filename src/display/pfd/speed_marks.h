#pragma once

#include "display/pfd/pfd_view.h"

/// The marks beside the speed tape: take-off speeds, flap manoeuvre speeds, the approach speed.
void DrawSpeedMarks(const PfdView& view);

constexpr int kClimbBugs = 4, kApproachBugs = 6;  // of flap_bug_phase
