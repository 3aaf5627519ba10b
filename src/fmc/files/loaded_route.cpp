#include "fmc/files/loaded_route.h"

#include <utility>
#include <vector>

#include "fmc/legs/active_leg.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/default_speeds.h"
#include "fmc/performance/flight_log.h"
#include "fmc/procedures/end_airports.h"
#include "navdata/geodesy.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/requests.h"
#include "state/sim.h"

namespace {

constexpr int kNoCostIndex = -1;

// The leg flown before a hold's; a hold has a leg of its own behind its fix, so that a namesake isn't it.
int LegBeforeHold(int leg) {
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    const int before = PlaceBefore(legs, leg);
    if (before <= 0 || legs[before].ident != legs[leg].ident) return before;
    return PlaceBefore(legs, before);
}

// A file tells at which legs holds stand, and no more: each is made anew.
void MakeStoredHolds() {
    std::vector<int> hold_legs;
    for (int i = 1; i <= plan.mod.leg_cnt; ++i)
        if (std::exchange(plan.mod.legs[i].hold_pos, 0) > 0) hold_legs.push_back(i);
    for (const int leg : hold_legs) {
        if (plan.hold_cnt >= kMostHolds) return;
        MarkHold(leg, false, LegBeforeHold(leg));
    }
}

// An airport that the database doesn't have is a place without runways and procedures.
AirportData UnknownAirport(const FlightPlanLeg& leg) {
    AirportData airport;
    airport.ident = leg.ident;
    airport.lat = leg.lat;
    airport.lon = leg.lon;
    return airport;
}

void TakeOrigin() {
    FlightPlanLeg& first = plan.mod.legs[0];
    if (!IsAirport(first)) return;
    plan.mod.ends.dep_runway = kNotSelected;
    plan.mod.ends.fms_dep_rwy_pos = 0;
    plan.active.ends.origin = plan.mod.ends.origin = first.ident;
    if (!IsRouteActive()) plan.active.ends = plan.mod.ends;
    plan.mod.procedures.dep_sid = plan.mod.procedures.dep_trans = kNotSelected;
    if (LoadOriginAirport(first.ident) == 1)
        first.alt = first.alt_restr = airports.origin_airport.elevation_ft;
    else
        airports.origin_airport = UnknownAirport(first);
    SetDefaultSpeeds(IsRouteActive() ? SpeedsCount::kWithExec : SpeedsCount::kNow);
}

void TakeDestination(std::string_view company_route) {
    const FlightPlanLeg& last = plan.mod.legs[plan.mod.leg_cnt];
    if (!IsAirport(last)) return;
    plan.mod.ends.dest = last.ident;
    plan.mod.ends.company_route = company_route;
    if (!IsRouteActive()) plan.active.ends = plan.mod.ends;
    ClearArrivalSelections();
    if (LoadDestinationAirport(last.ident) == 0) airports.dest_airport = UnknownAirport(last);
}

}  // namespace

void BeginLoadedRoute() {
    for (int i = 0; i <= plan.mod.leg_cnt; ++i) plan.mod.legs[i] = {};
    plan.mod.leg_cnt = -1;
    plan.mod.bod_pos = 0;
    RenumberHolds();
    plan.direct_to_pending = 0;
    plan.mod.active_leg = plan.active.active_leg;
    plan.awy_list_cnt = plan.awy_start_pos = plan.awy_start_leg = 0;
    plan.along_track_nm = 0;
    procedure_lists = {};
    plan.mod.entries.cruise_alt = 0;
    perf.planned_fuel = 0;
    if (cfg.CostIndex > kNoCostIndex) PlanCostIndex(cfg.CostIndex);
    requests.leave_legs_view = requests.forget_pick = 1;
    if (IsRouteActive()) SetPendingActiveLeg(1);  // the leg flown to isn't in the working copy any more
    RebuildRouteRows();
}

void MarkLoadedRouteNew() {
    plan.new_route = 1;
    SetPendingActiveLeg(1);
}

void PlanCostIndex(double index) {
    constexpr int kMost = 999;
    if (index < kNoCostIndex || index > kMost) return;
    (IsRouteActive() ? plan.mod.entries.ActiveCostIndex : perf.cost_index) = static_cast<int>(index);
}

void AddLoadedLeg(FlightPlanLeg leg) {
    if (IsDisco(leg) && cfg.ExcludeDisco == 1) return;
    // A gap begins no route and stands beside no other; an airway without an end is none to fly.
    const bool nothing_before = plan.mod.leg_cnt < 0 || IsDisco(plan.mod.legs[plan.mod.leg_cnt]);
    if (IsThen(leg) || (IsDisco(leg) && nothing_before)) return;
    plan.mod.legs[++plan.mod.leg_cnt] = std::move(leg);
}

void FinishLoadedRoute(std::string_view company_route) {
    const bool empty = plan.mod.leg_cnt < 0;
    if (IsRouteSettled() || (plan.fms_fpln_active == kRouteNone && !empty)) AdvanceRouteState();
    if (empty) {
        if (!IsRouteActive()) plan.fms_fpln_active = kRouteNone;  // there is nothing to activate
        return;
    }
    MakeStoredHolds();
    RebuildRouteRows();
    FlightLogStep(false);
    TakeOrigin();
    TakeDestination(company_route);
    if (sim.on_ground == 1) flight_log.fplog_mode = -1;
}
