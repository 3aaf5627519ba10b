#pragma once

#include <span>

#include "state/variable.h"

/// Three hydraulic systems of two sources each. Pressures in psi, whole numbers. Buttons and selectors of the
/// pumps stand in state/cockpit.h, and so does `rat_unlocked`.
struct HydraulicState {
    int eng_pump_l = 0, eng_pump_r = 0;                                        // the engine pump turns
    int elec_pump_l = 0, elec_pump_r = 0, elec_pump_c1 = 0, elec_pump_c2 = 0;  // the electric pump runs
    int press_eng_l = 0, press_eng_r = 0, press_elec_l = 0, press_elec_r = 0, press_c1 = 0, press_c2 = 0;
    int tz_hyd_press_l = 0, tz_hyd_press_c = 0, tz_hyd_press_r = 0;  // of the systems
};

extern HydraulicState hydraulics;
extern const std::span<const Variable> kHydraulicVariables;
