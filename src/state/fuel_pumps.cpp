#include "state/fuel_pumps.h"

FuelPumpState fuel_pumps;

namespace {
constexpr Variable kFuelPumpRows[] = {
    {"press_fwd_l", &fuel_pumps.press_fwd_l},
    {"press_aft_l", &fuel_pumps.press_aft_l},
    {"press_fwd_r", &fuel_pumps.press_fwd_r},
    {"press_aft_r", &fuel_pumps.press_aft_r},
    {"press_ctr_l", &fuel_pumps.press_ctr_l},
    {"press_ctr_r", &fuel_pumps.press_ctr_r},
    {"crossfeed_valve_timer", &fuel_pumps.crossfeed_valve_timer},
};
}  // namespace

const std::span<const Variable> kFuelPumpVariables = kFuelPumpRows;
