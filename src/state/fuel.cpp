#include "state/fuel.h"

FuelState fuel;

namespace {
constexpr Variable kFuelRows[] = {
    {"press_fwd_l", &fuel.press_fwd_l},
    {"press_aft_l", &fuel.press_aft_l},
    {"press_fwd_r", &fuel.press_fwd_r},
    {"press_aft_r", &fuel.press_aft_r},
    {"press_ctr_l", &fuel.press_ctr_l},
    {"press_ctr_r", &fuel.press_ctr_r},
    {"crossfeed_valve_timer", &fuel.crossfeed_valve_timer},
};
}  // namespace

const std::span<const Variable> kFuelVariables = kFuelRows;
