#include "guidance/vnav.h"

#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/vnav.h"

void VnavSpeedStep() {
    if (vnav.vnav_engaged != 1 || !IsRouteActive() || plan.active.stpos == kNoPlan) return;
    const bool climb = vnav.toc == 0, descent = vnav.tod == 1 || vnav.init_tod == 1;
    vnav.vnav_ias = descent ? perf.descent_ias : climb ? perf.climb_ias : perf.cruise_ias;
    vnav.vnav_mach = descent ? perf.descent_mach : climb ? perf.climb_mach : perf.cruise_mach;
    vnav.vnav_spd_pending = 1;
}
