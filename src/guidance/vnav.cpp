#include "guidance/vnav.h"

#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/vnav.h"

void VnavSpeedStep() {
    if (vnav.vnav_engaged != 1 || !IsRouteActive() || plan.active.stpos == kNoPlan) return;
    const bool climb = vnav.toc == 0, descent = vnav.tod == 1 || vnav.init_tod == 1;
    vnav.vnav_ias = descent ? perf.speeds.descent_ias
                    : climb ? perf.speeds.climb_ias
                            : perf.speeds.cruise_ias;
    vnav.vnav_mach = descent ? perf.speeds.descent_mach
                     : climb ? perf.speeds.climb_mach
                             : perf.speeds.cruise_mach;
    vnav.vnav_spd_pending = 1;
}
