#include "state/perf.h"

#include "state/cfg.h"

PerfState perf;

namespace {
constexpr Variable kPerfRows[] = {
    {"climb_ias", &perf.speeds.climb_ias},
    {"climb_mach", &perf.speeds.climb_mach},
    {"cruise_ias", &perf.speeds.cruise_ias},
    {"cruise_mach", &perf.speeds.cruise_mach},
    {"descent_ias", &perf.speeds.descent_ias},
    {"descent_mach", &perf.speeds.descent_mach},
    {"cost_index", &perf.cost_index},
    {"cruise_alt", &perf.cruise_alt},
    {"init_cruise_alt", &perf.init_cruise_alt},
    {"fms_step_size", &perf.fms_step_size},
    {"fms_step_to_alt", &perf.fms_step_to_alt},
    {"entered_step_to_alt", &perf.entered_step_to_alt},
    {"clb_spd_trans_alt", &cfg.ClbTransAltRest},
    {"clb_spd_trans_spd", &cfg.ClbTransSpdRest},
    {"clb_restr_alt", &cfg.ClbAltRest},
    {"clb_restr_spd", &cfg.ClbSpdRest},
    {"des_spd_trans_alt", &cfg.DescTransAltRest},
    {"des_spd_trans_spd", &cfg.DescTransSpdRest},
    {"des_restr_alt", &cfg.DesAltRest},
    {"des_restr_spd", &cfg.DesSpdRest},
    {"spd_limit", &perf.spd_limit},
    {"ZfwEntry", &perf.ZfwEntry},
    {"FuelEntry", &perf.FuelEntry},
    {"DragFactor", &perf.DragFactor},
    {"FuelFlowFactor", &perf.FuelFlowFactor},
    {"reserves", &perf.FuelEntry},
    {"resv_fuel", &perf.resv_fuel},
    {"planned_fuel", &perf.planned_fuel},
};
}  // namespace

const std::span<const Variable> kPerfVariables = kPerfRows;
