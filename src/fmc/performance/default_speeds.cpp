#include "fmc/performance/default_speeds.h"

#include "state/cfg.h"
#include "state/perf.h"

void SetDefaultSpeeds(SpeedsCount when) {
    const auto set = [when](double& speed, double& pending, int& by_hand, double value) {
        if (when == SpeedsCount::kWithExec) {
            pending = value;
            return;
        }
        speed = value;
        pending = 0;
        by_hand = 0;
    };
    const double climb = cfg.ClimbIas;
    const double cruise = cfg.CruiseIas > 0 ? cfg.CruiseIas : climb;
    const double descent = cfg.DescentIas > 0 ? cfg.DescentIas : climb;
    set(perf.climb_ias, perf.pending_climb_ias, perf.climb_ias_manual, climb);
    set(perf.cruise_ias, perf.pending_cruise_ias, perf.cruise_ias_manual, cruise);
    set(perf.descent_ias, perf.pending_descent_ias, perf.descent_ias_manual, descent);
    set(perf.climb_mach, perf.pending_climb_mach, perf.climb_mach_manual, 0.74);
    set(perf.cruise_mach, perf.pending_cruise_mach, perf.cruise_mach_manual, 0.78);
    set(perf.descent_mach, perf.pending_descent_mach, perf.descent_mach_manual, 0.74);
}
