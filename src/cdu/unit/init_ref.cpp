#include "cdu/unit/init_ref.h"

#include "cdu/words/page.h"
#include "fmc/performance/approach_speeds.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

int PageBelowAcceleration() {
    if (pos_init.InertialEntryLat == 0.0) return kPagePosInit;
    if (perf.resv_fuel <= 0 || perf.cruise_alt < 1) return kPagePerfInit;
    if (plan.active.ends.dep_runway == kNotSelected) return kPagePerfInit;
    return perf.cost_index > -1 ? kPageTakeoffRef : kPagePerfInit;
}

}  // namespace

void SelectInitRefPage(int side) {
    const bool low = cfg.AccelHt >= sim.radio_alt_ft;
    const bool approaching = vnav.tod != 0 || vnav.toc != 0;
    if (!low && approaching && cfg.CduAutoCalcVspeeds == 1) FillApproachSpeeds(LandingWeight::kLimited);
    GoToPage(side, low ? PageBelowAcceleration() : approaching ? kPageApproachRef : kPageThrustLim);
}
