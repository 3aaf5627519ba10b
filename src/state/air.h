#pragma once

#include <span>

#include "state/variable.h"

/// Temperatures of the compartments, whole degrees Fahrenheit, and the seconds until each may move by one.
struct AirState {
    int flt_deck_temp_target = 75;
    int cabin_temp_target = 75;
    int cargo_temp_target = 40;
    int cabin_temp = 75;
    int flt_deck_temp = 75;
    int fwd_cargo_temp = 40, aft_cargo_temp = 40, bulk_cargo_temp = 40;
    int cabin_temp_timer = 0;  // s, 0 = doesn't run
    int flt_deck_temp_timer = 0;
    int fwd_cargo_temp_timer = 0, aft_cargo_temp_timer = 0, bulk_cargo_temp_timer = 0;
};

extern AirState air;
extern const std::span<const Variable> kAirVariables;
