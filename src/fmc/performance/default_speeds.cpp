#include "fmc/performance/default_speeds.h"

#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"

void FillMissingSpeeds(PlannedSpeeds& speeds) {
    if (speeds.climb_ias <= 0) speeds.climb_ias = cfg.ClimbIas;
    if (speeds.cruise_ias <= 0) speeds.cruise_ias = cfg.CruiseIas > 0 ? cfg.CruiseIas : cfg.ClimbIas;
    if (speeds.descent_ias <= 0) speeds.descent_ias = cfg.DescentIas > 0 ? cfg.DescentIas : cfg.ClimbIas;
}

void SetDefaultSpeeds(SpeedsCount when) {
    PlannedSpeeds start{.climb_mach = 0.74, .cruise_mach = 0.78, .descent_mach = 0.74};
    FillMissingSpeeds(start);
    if (when == SpeedsCount::kWithExec) {
        plan.mod.entries.speeds = start;
        return;
    }
    perf.speeds = start;
    plan.mod.entries.speeds = {};
    plan.mod.selected = plan.active.selected = {};
}
