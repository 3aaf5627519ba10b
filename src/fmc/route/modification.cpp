#include "fmc/route/modification.h"

#include "fmc/legs/holds.h"
#include "fmc/legs/route_rows.h"
#include "fmc/performance/profile.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/procedure_legs.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/requests.h"

namespace {

// Procedures are loaded with the airports at both ends.
void LoadEndsAgain() {
    const RouteEnds& ends = plan.active.ends;
    if (airports.origin_airport.ident != ends.origin) LoadOriginAirport(ends.origin);
    if (airports.dest_airport.ident != ends.dest) LoadDestinationAirport(ends.dest);
}

}  // namespace

void RefreshLegsForModification() {
    plan.mod = plan.active;
    for (int i = 0; i <= plan.mod.leg_cnt; ++i) {
        plan.mod.legs[i].ata.clear();
        plan.mod.legs[i].mod_flag = 0;
    }
    plan.pending_stpos = IsRouteModified() ? plan.active.stpos : 0;
    plan.direct_to_pending = 0;
    RenumberHolds();
}

void EraseModification() {
    if (!IsRouteActive()) return;
    plan.fms_fpln_active = kRouteActive;
    // A stored route that was loaded has its origin shown at once.
    if (IsAirport(plan.active.legs[0])) plan.active.ends.origin = plan.active.legs[0].ident;
    RefreshLegsForModification();
    LoadEndsAgain();
    plan.new_route = 0;
    perf.planned_fuel = 0;
    if (lnav.hold_exit == 2 || lnav.hold_exit == 3) lnav.hold_exit = 0;
    RebuildRouteRows();
    requests.leave_legs_view = 1;
    BuildApproachTransitions();
}

void ClearFlightPlan() {
    RemoveAllHolds();
    plan = {};
    predictions = {};
    perf.cruise_alt = 0;
    perf.init_cruise_alt = 0;
    perf.planned_fuel = 0;
    ForgetProfile();
    lnav.lnav_init_mode = 0;
    lnav.holding = lnav.hold_point = lnav.hold_exit = 0;
    airports.origin_airport = {};
    airports.dest_airport = {};
}
