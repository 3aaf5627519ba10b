#include "fmc/performance/default_speeds.h"

#include "fmc/performance/predictions.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"

void FillMissingSpeeds(PlannedSpeeds& speeds) {
    if (speeds.climb_ias <= 0) speeds.climb_ias = cfg.ClimbIas;
    if (speeds.cruise_ias <= 0) speeds.cruise_ias = cfg.CruiseIas > 0 ? cfg.CruiseIas : cfg.ClimbIas;
    if (speeds.descent_ias <= 0) speeds.descent_ias = cfg.DescentIas > 0 ? cfg.DescentIas : cfg.ClimbIas;
}

void FillMissingMachs(PlannedSpeeds& speeds, double cruise_alt) {
    const auto fill = [cruise_alt](double& mach, double configured, double ias) {
        if (mach <= 0) mach = configured > 0 ? configured : IasToMach(ias, cruise_alt);
    };
    fill(speeds.climb_mach, cfg.ClimbMach, speeds.climb_ias);
    fill(speeds.cruise_mach, cfg.CruiseMach, speeds.cruise_ias);
    fill(speeds.descent_mach, cfg.DescentMach, speeds.descent_ias);
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
