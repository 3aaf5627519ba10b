#include "fmc/route/route.h"

#include <algorithm>
#include <utility>

#include "fmc/legs/holds.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/route_rows.h"
#include "fmc/procedures/procedure_legs.h"
#include "fmc/route/endpoints.h"
#include "frame/fuel_loader.h"
#include "frame/key_events.h"
#include "platform/host.h"
#include "state/airports.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

// What loading a route does to an aircraft at the gate.
void PrepareAircraftForRoute() {
    constexpr double kStanding = 5;
    constexpr double kLowestCruise = 1000;
    if (sim.ground_speed_kt >= kStanding) return;
    if (cfg.LoadFuelonFlightPlanLoad == 1 && perf.planned_fuel > 0)
        LoadTotalFuel(std::exchange(perf.planned_fuel, 0));
    if (cfg.SetMCPCruiseAltonFlightPlanLoad == 1 && perf.pending_cruise_alt >= kLowestCruise)
        SendKeyEvent(kKeyAltitudeSet, static_cast<int>(std::min(perf.pending_cruise_alt, 99999.0)));
}

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
    if (plan.FlightPlan[0].type == "APT") plan.ends.origin = plan.FlightPlan[0].ident;
    plan.ends_mod = plan.ends;
    plan.procedures = plan.procedures_kept;
    if (airports.origin_airport.ident != plan.ends.origin) LoadOriginAirport(plan.ends.origin);
    if (airports.dest_airport.ident != plan.ends.dest) LoadDestinationAirport(plan.ends.dest);
}

// A direct-to whose fix has been passed in the meantime is none any more.
void MovePendingActiveLeg(int leg) {
    if (leg != plan.pending_stpos && plan.direct_to_pending == 1) {
        plan.direct_to_pending = 0;
        plan.ActiveLegMod = plan.ActiveLeg;
    }
    SetPendingActiveLeg(leg);
}

}  // namespace

int PendingActiveLeg() {
    return plan.pending_stpos >= 1 ? plan.pending_stpos : plan.stpos;
}

void SetPendingActiveLeg(int leg) {
    plan.mod_stpos = leg;
    plan.pending_stpos = leg;
}

void AdvanceRouteState() {
    switch (plan.fms_fpln_active) {
        case kRouteNone:
        case kRouteEntered:
        case kRouteActivated:
            ++plan.fms_fpln_active;
            break;
        case kRouteActive:
            plan.fms_fpln_active = kRouteModified;
            SetPendingActiveLeg(PendingActiveLeg());
            break;
        case kRouteModified:
            plan.fms_fpln_active = kRouteActive;
            break;
        default:
            break;
    }
    PrepareAircraftForRoute();
}

void OpenModification() {
    if (plan.fms_fpln_active == kRouteNone || plan.fms_fpln_active == kRouteActive) AdvanceRouteState();
}

void RefreshLegsForModification() {
    for (int i = plan.fp_cnt + 1; i <= plan.mod_cnt; ++i) plan.FlightPlanMod[i] = {};
    for (int i = 0; i <= plan.fp_cnt; ++i) {
        FlightPlanLeg& leg = plan.FlightPlanMod[i];
        leg = plan.FlightPlan[i];
        leg.ata.clear();
        leg.mod_flag = 0;
    }
    plan.mod_cnt = plan.fp_cnt;
    plan.mod_stpos = plan.stpos;
    plan.pending_stpos = plan.fms_fpln_active == kRouteModified ? plan.stpos : 0;
    plan.mod_bod_pos = vnav.bod_pos;
    plan.ActiveLegMod = plan.ActiveLeg;
    plan.direct_to_pending = 0;
    DropPendingHolds();
}

void EraseModification() {
    if (plan.fms_fpln_active < kRouteActive) return;
    BringBackEnds();
    ClearPendingEntries();
    plan.new_route = 0;
    perf.planned_fuel = 0;
    if (lnav.hold_exit == 2 || lnav.hold_exit == 3) lnav.hold_exit = 0;
    RestoreExecutedHolds();
    plan.fms_fpln_active = kRouteActive;
    RefreshLegsForModification();
    RebuildRouteRows();
    LeaveLegsView();
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
    vnav.bod_pos = 0;
    lnav.lnav_init_mode = 0;
    lnav.holding = lnav.hold_point = lnav.hold_exit = 0;
    airports.origin_airport = {};
    airports.dest_airport = {};
}

void FollowSequencing() {
    if (plan.fms_fpln_active == kRouteActive) {
        plan.mod_stpos = plan.stpos;
        plan.pending_stpos = 0;
        return;
    }
    if (plan.fms_fpln_active != kRouteModified || plan.stpos == kNoPlan) return;
    if (const int leg = FindModLeg(plan.FlightPlan[plan.stpos], plan.pending_stpos); leg > 0) {
        MovePendingActiveLeg(leg);
        return;
    }
    // The leg now flown to has been taken out, but the pending one may have been passed.
    const int passed = PlaceBefore(plan.FlightPlan, plan.stpos);
    if (passed > 0 && FindModLeg(plan.FlightPlan[passed], plan.pending_stpos) == plan.mod_stpos)
        MovePendingActiveLeg(std::min(plan.mod_stpos + 1, plan.mod_cnt));
}
