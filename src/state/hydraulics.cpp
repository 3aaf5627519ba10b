#include "state/hydraulics.h"

HydraulicState hydraulics;

namespace {
constexpr Variable kHydraulicRows[] = {
    {"eng_pump_l", &hydraulics.eng_pump_l},
    {"eng_pump_r", &hydraulics.eng_pump_r},
    {"elec_pump_l", &hydraulics.elec_pump_l},
    {"elec_pump_r", &hydraulics.elec_pump_r},
    {"elec_pump_c1", &hydraulics.elec_pump_c1},
    {"elec_pump_c2", &hydraulics.elec_pump_c2},
    {"press_eng_l", &hydraulics.press_eng_l},
    {"press_eng_r", &hydraulics.press_eng_r},
    {"press_elec_l", &hydraulics.press_elec_l},
    {"press_elec_r", &hydraulics.press_elec_r},
    {"press_c1", &hydraulics.press_c1},
    {"press_c2", &hydraulics.press_c2},
    {"tz_hyd_press_l", &hydraulics.tz_hyd_press_l},
    {"tz_hyd_press_c", &hydraulics.tz_hyd_press_c},
    {"tz_hyd_press_r", &hydraulics.tz_hyd_press_r},
};
}  // namespace

const std::span<const Variable> kHydraulicVariables = kHydraulicRows;
