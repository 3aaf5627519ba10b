#pragma once

#include <span>

#include "state/variable.h"

/// The six boost pumps as ramps of pressure, a step a tick: main tank pumps from 0 to 20, centre ones to 30.
/// Quantities stand in state/sim.h, buttons in state/cockpit.h.
struct FuelPumpState {
    int press_fwd_l = 0, press_aft_l = 0, press_fwd_r = 0, press_aft_r = 0;
    int press_ctr_l = 0, press_ctr_r = 0;
    int crossfeed_valve_timer = 0;  // ticks, while the valve moves
};

extern FuelPumpState fuel_pumps;
extern const std::span<const Variable> kFuelPumpVariables;
