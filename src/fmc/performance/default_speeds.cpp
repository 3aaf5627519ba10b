#include "fmc/performance/default_speeds.h"

#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"

void SetDefaultSpeeds(SpeedsCount when) {
    const double climb = cfg.ClimbIas;
    const double cruise = cfg.CruiseIas > 0 ? cfg.CruiseIas : climb;
    const double descent = cfg.DescentIas > 0 ? cfg.DescentIas : climb;
    const PlannedSpeeds start{.climb_ias = climb,
                              .climb_mach = 0.74,
                              .cruise_ias = cruise,
                              .cruise_mach = 0.78,
                              .descent_ias = descent,
                              .descent_mach = 0.74};
    if (when == SpeedsCount::kWithExec) {
        plan.mod.entries.speeds = start;
        return;
    }
    perf.speeds = start;
    plan.mod.entries.speeds = {};
    plan.mod.selected = plan.active.selected = {};
}
