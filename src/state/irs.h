#pragma once

#include <span>

#include "state/variable.h"

/// The two inertial reference systems: alignment timers. The knobs stand in state/cockpit.h.
struct IrsState {
    int irs_timer_l = 0, irs_timer_r = 0;  // ticks of alignment left; 0 = not aligning
    int irs_left = 0, irs_right = 0;       // aligned
};

extern IrsState irs;
extern const std::span<const Variable> kIrsVariables;
