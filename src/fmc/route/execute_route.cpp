#include "fmc/route/execute_route.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "base/angles.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/path.h"
#include "fmc/legs/route_rows.h"
#include "fmc/performance/default_speeds.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/profile.h"
#include "fmc/performance/step_point.h"
#include "fmc/performance/vertical_segment.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/route/modification.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kLowestCruise = 1000;

void ApplyEntries() {
    const PerfEntries& entries = plan.mod.entries;
    for (const auto& [speed, selected] : kPlannedSpeeds)
        if (entries.speeds.*speed > 0) perf.speeds.*speed = entries.speeds.*speed;
    if (entries.ActiveStepSize > kNoStepEntry) perf.fms_step_size = entries.ActiveStepSize;
    constexpr int kNoCostIndex = -1;
    if (entries.ActiveCostIndex == kNoCostIndex) return;
    perf.cost_index = std::max(entries.ActiveCostIndex, kNoCostIndex);
    if (perf.cost_index > kNoCostIndex) plan.mod.selected = {};
}

void BeginNewRoute() {
    if (plan.new_route == 0) return;
    plan.new_route = 0;
    if (!IsRouteActive()) perf.cruise_alt = 0;
    plan.active.stpos = 1;
    plan.pending_stpos = 0;
    plan.active.active_leg = plan.mod.active_leg = {};
    plan.direct_to_pending = 0;
    plan.direct_abeam_check = 1;
    ForgetProfile();
    predictions.final_point_set = 0;
    plan.terrain_profile_due = 1;
}

// The cruise altitude that this EXEC brings, 0 = none.
double ComingCruise() {
    if (plan.mod.entries.cruise_alt > 0) return plan.mod.entries.cruise_alt;
    return perf.cruise_alt > 0 ? perf.cruise_alt : BestAltitude();
}

void FillSpeeds() {
    const SpeedSelections& selected = plan.mod.selected;
    PlannedSpeeds& speeds = perf.speeds;
    FillMissingSpeeds(speeds);
    constexpr double kUsualCruise = 30000;
    const double altitude = perf.cruise_alt > 0 ? perf.cruise_alt : kUsualCruise;
    if (perf.cost_index < 0) {
        if (selected.climb_mach_manual == 0) speeds.climb_mach = IasToMach(speeds.climb_ias, altitude);
        if (selected.LrcSelected == 1)
            speeds.cruise_mach = EconCruiseMach(kLongRangeCruise, altitude);
        else if (selected.CruiseMachSelected == 0)
            speeds.cruise_mach = IasToMach(speeds.cruise_ias, altitude);
        if (selected.descent_mach_manual == 0) speeds.descent_mach = IasToMach(speeds.descent_ias, altitude);
        return;
    }
    ApplyCostIndexRow(true, perf.cost_index);
    if (selected.ClimbSelected == 0) speeds.climb_ias = EconClimbSpeed(perf.cost_index);
    const int cruise_index = selected.LrcSelected == 1 ? kLongRangeCruise : perf.cost_index;
    if (selected.CruiseMachSelected == 0) speeds.cruise_mach = EconCruiseMach(cruise_index, altitude);
    if (selected.DescentSelected == 0) speeds.descent_ias = EconDescentSpeed(perf.cost_index);
    FillMissingMachs(speeds, altitude);
}

void TakeOverModification() {
    RemoveLostHolds();
    SetPendingActiveLeg(PendingActiveLeg());
    const int bod_pos = plan.active.bod_pos;  // searched anew, against the old one
    plan.active = plan.mod;
    plan.active.bod_pos = bod_pos;
    plan.active.entries = {};
    for (int i = 0; i <= plan.active.leg_cnt; ++i) plan.active.legs[i].mod_flag = 0;
    RenumberHolds();
}

void KeepFinalApproach() {
    for (int i = 1; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& map = plan.active.legs[i];
        if (!IsMissedPoint(map)) continue;
        const FlightPlanLeg& before = plan.active.legs[std::max(PlaceBefore(plan.active.legs, i), 0)];
        const double course = GreatCircle(before.lat, before.lon, map.lat, map.lon).bearing;
        plan.final_appr_crs = FoldBearing(course - MagVarAt(map.lat, map.lon));
        plan.map_ident = map.ident;
        plan.map_fix_lat = map.lat;
        plan.map_fix_lon = map.lon;
        return;
    }
}

void ChooseActiveLeg() {
    int& to = plan.active.stpos;
    if (to == kNoPlan) to = 1;
    to = std::clamp(to, 1, plan.active.leg_cnt);
    if (!IsDisco(plan.active.legs[to]) || to == plan.active.leg_cnt) return;
    ++to;
    perf.cruise_alt = std::max(perf.cruise_alt, plan.active.legs[to].step_alt);
}

// Where a direct-to begins: past the turn that the aircraft has yet to fly.
LatLon DirectToStart(const ActiveLegRecord& leg) {
    constexpr double kOnCourse = 10;  // degrees
    constexpr double kSlow = 150;     // kt
    constexpr double kSlowDistance = 1.25;
    constexpr double kSecondsAhead = 25;
    const LatLon here{sim.plane_lat, sim.plane_lon};
    const double bearing = GreatCircle(here.lat, here.lon, leg.to_lat, leg.to_lon).bearing;
    const int angle = AngleBetween(sim.true_hdg, bearing);
    if (angle <= kOnCourse) return here;
    const double half = TurnSide(sim.true_hdg, bearing) == kTurnRight ? angle / 2.0 : -angle / 2.0;
    const double ahead =
        sim.ground_speed_kt < kSlow ? kSlowDistance : sim.ground_speed_kt / 3600 * kSecondsAhead;
    return ProjectPoint(here.lat, here.lon, FoldBearing(sim.true_hdg + half), ahead);
}

// Of the modification's leg only a direct-to counts; else the leg that has been flown goes on as far as it
// can.
void AimActiveLeg(const ActiveLegRecord& flown) {
    ActiveLegRecord& leg = plan.active.active_leg;
    const bool direct_to = IsDirectTo(leg);
    if (!direct_to) leg = flown;
    const FlightPlanLeg& to = plan.active.legs[plan.active.stpos];
    const bool is_flown = leg.to == to.ident && leg.to_lat == to.lat && leg.to_lon == to.lon;
    leg.to = to.ident;
    leg.to_lat = to.lat;
    leg.to_lon = to.lon;
    if (direct_to && plan.direct_to_pending == 1) {
        const LatLon start = DirectToStart(leg);
        leg.from_lat = start.lat;
        leg.from_lon = start.lon;
        leg.direct_flag = 1;
        plan.direct_abeam_check = 1;
    }
    plan.direct_to_pending = 0;
    if (!IsDirectTo(leg) || leg.direct_flag == 0) {
        const FlightPlanLeg& from =
            plan.active.legs[std::max(PlaceBefore(plan.active.legs, plan.active.stpos), 0)];
        // The leg being flown keeps its start also when the passed fix has been taken out of the list.
        const bool start_is_gone =
            is_flown && !leg.from.empty() && !IsDirectTo(leg) && leg.from != from.ident;
        if (!start_is_gone) {
            leg.from = from.ident;
            leg.from_lat = from.lat;
            leg.from_lon = from.lon;
        }
        leg.direct_flag = 0;
    }
    const DistBearing course = GreatCircle(leg.from_lat, leg.from_lon, leg.to_lat, leg.to_lon);
    lnav.leg_len = course.dist;
    lnav.leg_crs = FoldCourse(course.bearing - sim.mgvar);
    leg.course = lnav.leg_crs;
}

void MoveToRunway(FlightPlanLeg& leg, const AirportData& airport, const std::string& runway) {
    if (!IsAirport(leg) || leg.ident != airport.ident) return;
    for (int i = 1; i <= airport.runway_cnt; ++i) {
        const RunwayData& row = std::as_const(airport.runways)[i];
        if (row.ident != runway) continue;
        leg.lat = row.lat;
        leg.lon = row.lon;
        return;
    }
}

void PlaceEndsOnRunways() {
    MoveToRunway(plan.active.legs[0], airports.origin_airport, plan.active.ends.dep_runway);
    MoveToRunway(plan.active.legs[plan.active.leg_cnt], airports.dest_airport,
                 plan.active.procedures.arr_appr_rwy);
}

void SettleDestination() {
    const FlightPlanLeg& last = plan.active.legs[plan.active.leg_cnt];
    if (!IsAirport(last)) return;
    const bool changed = airports.dest_airport.ident != last.ident;
    if (changed || !IsRouteActive()) LoadDestinationAirport(last.ident);
    plan.active.ends.dest = last.ident;
    if (!changed) return;
    ClearArrivalSelections();
    plan.active.procedures = plan.mod.procedures;
}

void SettleOrigin() {
    const FlightPlanLeg& first = plan.active.legs[0];
    if (!IsAirport(first)) return;
    const bool changed = airports.origin_airport.ident != first.ident;
    if (changed || !IsRouteActive()) LoadOriginAirport(first.ident);
    if (!IsRouteActive() && sim.on_ground == 1) flight_log.fplog_mode = -1;
    if (changed) {
        plan.active.ends = {.origin = first.ident,
                            .dest = plan.active.ends.dest,
                            .company_route = plan.active.ends.company_route};
        plan.active.procedures.dep_sid = plan.active.procedures.dep_trans = kNotSelected;
        RemoveAllHolds();
    }
    plan.active.ends.origin = first.ident;
}

constexpr int kEnteredStep = 0, kIcaoStep = -1, kRvsmStep = -2;

// Above FL 400 the levels of one direction no longer lie 2000 ft apart.
struct LevelPair {
    double from, to;
};
constexpr LevelPair kHighLevels[] = {{40000, 43000}, {41000, 45000}, {43000, 47000},
                                     {45000, 49000}, {47000, 51000}, {49000, 53000}};

const LevelPair* FindHighLevel(double cruise_alt) {
    const auto* found = std::find_if(std::begin(kHighLevels), std::end(kHighLevels),
                                     [cruise_alt](const LevelPair& pair) { return pair.from == cruise_alt; });
    return found == std::end(kHighLevels) ? nullptr : found;
}

void PlanStepClimb() {
    perf.fms_step_to_alt = StepToAltitude(perf.cruise_alt, perf.fms_step_size, perf.entered_step_to_alt);
    // The high levels stand as they are: nearly all of them lie above any maximum that the weight allows.
    const bool is_high_level = perf.fms_step_size == kRvsmStep && FindHighLevel(perf.cruise_alt) != nullptr;
    if (!is_high_level && perf.fms_step_to_alt > MaxAltitude() * 100.0) perf.fms_step_to_alt = 0;
}

// What follows from the cruise altitude.
void PlanCruise() {
    PlanStepClimb();
    if (vnav.init_tod == 0) perf.init_cruise_alt = perf.cruise_alt;
    if (perf.cost_index >= 0) predictions.perf_factor = PerfFactor();
}

}  // namespace

double StepToAltitude(double cruise_alt, int size, double entered) {
    if (size == kEnteredStep) return entered;
    if (size == kIcaoStep) return cruise_alt + 4000;
    if (size != kRvsmStep) return cruise_alt + size;
    if (const LevelPair* pair = FindHighLevel(cruise_alt)) return pair->to;
    constexpr double kLowLevels = 41001;
    return cruise_alt < kLowLevels ? cruise_alt + 2000 : 0;
}

void ExecuteRoute() {
    NormalizeLegs();
    if (plan.mod.leg_cnt < 1 || !IsPlace(plan.mod.legs[plan.mod.leg_cnt])) return;
    ApplyEntries();
    BeginNewRoute();
    const ActiveLegRecord flown = plan.active.active_leg;
    TakeOverModification();
    KeepFinalApproach();
    ChooseActiveLeg();
    AimActiveLeg(flown);
    PlaceEndsOnRunways();
    SettleDestination();
    SettleOrigin();
    plan.fms_fpln_active = kRouteActive;
    perf.cruise_alt = ComingCruise();
    FillSpeeds();
    if (perf.cruise_alt >= kLowestCruise) PlanCruise();
    ComputeProfile(perf.cruise_alt, 0);
    ComputeDistances();
    ComputeStepPoint();
    FindBottomOfDescent(plan.active.stpos);
    SetCrossAtPoint();
    FindNextClimbRestriction();
    FindNextDescentRestriction();
    RefreshLegsForModification();
    RebuildRouteRows();
}
