#include "fmc/default_speeds.h"

#include "state/cfg.h"
#include "state/perf.h"

DefaultSpeeds ConfiguredSpeeds() {
    const double climb = cfg.ClimbIas;
    return {.climb_ias = climb,
            .cruise_ias = cfg.CruiseIas > 0 ? cfg.CruiseIas : climb,
            .descent_ias = cfg.DescentIas > 0 ? cfg.DescentIas : climb,
            .climb_mach = 0.74,
            .cruise_mach = 0.78,
            .descent_mach = 0.74};
}

void SetDefaultSpeeds() {
    const DefaultSpeeds speeds = ConfiguredSpeeds();
    perf.climb_ias = speeds.climb_ias;
    perf.cruise_ias = speeds.cruise_ias;
    perf.descent_ias = speeds.descent_ias;
    perf.climb_mach = speeds.climb_mach;
    perf.cruise_mach = speeds.cruise_mach;
    perf.descent_mach = speeds.descent_mach;
    perf.climb_ias_manual = perf.climb_mach_manual = 0;
    perf.cruise_ias_manual = perf.cruise_mach_manual = 0;
    perf.descent_ias_manual = perf.descent_mach_manual = 0;
}

void SetDefaultSpeedsPending() {
    const DefaultSpeeds speeds = ConfiguredSpeeds();
    perf.pending_climb_ias = speeds.climb_ias;
    perf.pending_cruise_ias = speeds.cruise_ias;
    perf.pending_descent_ias = speeds.descent_ias;
    perf.pending_climb_mach = speeds.climb_mach;
    perf.pending_cruise_mach = speeds.cruise_mach;
    perf.pending_descent_mach = speeds.descent_mach;
}
