#include "fmc/route/modification.h"

#include "fmc/legs/holds.h"
#include "fmc/legs/route_rows.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/procedure_legs.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/requests.h"
#include "state/vnav.h"

namespace {

void ClearPendingEntries() {
    const PerfState fresh;
    perf.pending_climb_ias = fresh.pending_climb_ias;
    perf.pending_climb_mach = fresh.pending_climb_mach;
    perf.pending_cruise_ias = fresh.pending_cruise_ias;
    perf.pending_cruise_mach = fresh.pending_cruise_mach;
    perf.pending_descent_ias = fresh.pending_descent_ias;
    perf.pending_descent_mach = fresh.pending_descent_mach;
    perf.pending_step_size = fresh.pending_step_size;
    perf.pending_cost_index = fresh.pending_cost_index;
    perf.pending_cruise_alt = fresh.pending_cruise_alt;
}

void BringBackEnds() {
    // A stored route that was loaded has its origin shown at once.
    if (IsAirport(plan.active.legs[0])) plan.active.ends.origin = plan.active.legs[0].ident;
    plan.mod.ends = plan.active.ends;
    plan.mod.procedures = plan.active.procedures;
    if (airports.origin_airport.ident != plan.active.ends.origin) LoadOriginAirport(plan.active.ends.origin);
    if (airports.dest_airport.ident != plan.active.ends.dest) LoadDestinationAirport(plan.active.ends.dest);
}

}  // namespace

void RefreshLegsForModification() {
    for (int i = plan.active.leg_cnt + 1; i <= plan.mod.leg_cnt; ++i) plan.mod.legs[i] = {};
    for (int i = 0; i <= plan.active.leg_cnt; ++i) {
        FlightPlanLeg& leg = plan.mod.legs[i];
        leg = plan.active.legs[i];
        leg.ata.clear();
        leg.mod_flag = 0;
    }
    plan.mod.leg_cnt = plan.active.leg_cnt;
    plan.mod.stpos = plan.active.stpos;
    plan.pending_stpos = IsRouteModified() ? plan.active.stpos : 0;
    plan.mod.bod_pos = plan.active.bod_pos;
    plan.mod.active_leg = plan.active.active_leg;
    plan.direct_to_pending = 0;
    DropPendingHolds();
}

void EraseModification() {
    if (!IsRouteActive()) return;
    BringBackEnds();
    ClearPendingEntries();
    plan.new_route = 0;
    perf.planned_fuel = 0;
    if (lnav.hold_exit == 2 || lnav.hold_exit == 3) lnav.hold_exit = 0;
    RestoreExecutedHolds();
    plan.fms_fpln_active = kRouteActive;
    RefreshLegsForModification();
    RebuildRouteRows();
    requests.leave_legs_view = 1;
    BuildApproachTransitions();
}

void ClearFlightPlan() {
    RemoveAllHolds();
    plan = {};
    const PerfState fresh;
    perf.clb_burn = fresh.clb_burn;
    perf.crz_burn = fresh.crz_burn;
    perf.des_burn = fresh.des_burn;
    perf.default_climb_rate = fresh.default_climb_rate;
    perf.cruise_alt = 0;
    perf.init_cruise_alt = 0;
    perf.planned_fuel = 0;
    perf.final_point_set = 0;
    perf.dist_to_toc = perf.dist_to_tod = perf.dist_to_dest = 0;
    ClearPendingEntries();
    vnav.toc = vnav.tod = vnav.init_tod = 0;
    plan.active.bod_pos = 0;
    lnav.lnav_init_mode = 0;
    lnav.holding = lnav.hold_point = lnav.hold_exit = 0;
    airports.origin_airport = {};
    airports.dest_airport = {};
}
