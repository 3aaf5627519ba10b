#include "state/engines.h"

EngineState engines;

namespace {
constexpr Variable kEngineRows[] = {
    {"eng1_start_phase", &engines.eng1_start_phase},
    {"eng2_start_phase", &engines.eng2_start_phase},
    {"eng1_lightoff_timer", &engines.eng1_lightoff_timer},
    {"eng2_lightoff_timer", &engines.eng2_lightoff_timer},
    {"start_pressure_timer", &engines.start_pressure_timer},
    {"engine_turns", &engines.engine_turns},
    {"eng_starter_cutout", &engines.eng_starter_cutout},
    {"FMC_TO_Derate", &engines.FMC_TO_Derate},
    {"TakeoffDerate", &engines.FMC_TO_Derate},
    {"ClimbDerate", &engines.FMC_CLB_Derate},
    {"FMC_CLB_Derate", &engines.FMC_CLB_Derate},
    {"FMC_Flex_Temp", &engines.FMC_Flex_Temp},
    {"climb_derate_exchanged", &engines.climb_derate_exchanged},
    {"thrust_limit_exchanged", &engines.thrust_limit_exchanged},
    {"FADEC_Green_line", &engines.FADEC_Green_line},
    {"FADEC_Amber_line", &engines.FADEC_Amber_line},
    {"Eng1_TPR", &engines.Eng1_TPR},
    {"Eng2_TPR", &engines.Eng2_TPR},
    {"Eng1_N1_calc", &engines.Eng1_N1_calc},
    {"Eng2_N1_calc", &engines.Eng2_N1_calc},
    {"fire_test_timer", &engines.fire_test_timer},
    {"fire_pass_timer", &engines.fire_pass_timer},
};
}  // namespace

const std::span<const Variable> kEngineVariables = kEngineRows;
