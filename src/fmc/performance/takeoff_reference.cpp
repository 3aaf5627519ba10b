#include "fmc/performance/takeoff_reference.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/angles.h"
#include "base/units.h"
#include "fmc/performance/takeoff_speeds.h"
#include "frame/aircraft.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"

double TakeoffWeight() {
    if (takeoff_approach.TogwEntry > 0) return takeoff_approach.TogwEntry;
    return sim.total_fuel + perf.FuelEntry + ZeroFuelWeight();
}

void ComputeTakeoffSpeeds() {
    TakeoffApproachState& takeoff = takeoff_approach;
    constexpr int kUsualFlaps = 5, kNoDerate = 0;
    const double kg = TakeoffWeight() * kKgPerLb;
    const int flaps = takeoff.to_flaps > 0 ? takeoff.to_flaps : kUsualFlaps;
    if (takeoff.V1Entered == 0) takeoff.v1 = ComputeV1(kg, 0, kNoDerate, flaps, 0, 0, 0, 0, 0);
    if (takeoff.VREntered == 0) takeoff.vr = ComputeVR(kg, kNoDerate, flaps, 0, 0);
    if (takeoff.V2Entered == 0) takeoff.v2 = ComputeV2(kg, kNoDerate, flaps, 0, 0);
}

void UpdateTakeoffSpeeds() {
    if (cfg.CduAutoCalcVspeeds == 1 && takeoff_approach.to_flaps > 0) ComputeTakeoffSpeeds();
}

void ComputeTakeoffTrim() {
    // This system's own tuning: the further forward the weight and the less flap, the more nose-up trim.
    constexpr double kForwardCg = 8, kForwardTrim = 8.5, kUnitsPerPercent = 0.19, kUnitsPerFlap = 0.05;
    constexpr double kLeast = 0.25;
    if (takeoff_approach.TakeoffTrimCg <= 0) return;
    takeoff_approach.TakeoffTrim =
        std::max(kForwardTrim - (takeoff_approach.TakeoffTrimCg - kForwardCg) * kUnitsPerPercent -
                     takeoff_approach.to_flaps * kUnitsPerFlap,
                 kLeast);
}

const RunwayData* DepartureRunway() {
    const std::string& wanted = plan.mod.ends.dep_runway;
    const AirportData& airport = airports.origin_airport;
    if (wanted == kNotSelected) return nullptr;
    for (int i = 1; i <= airport.runway_cnt; ++i)
        if (std::as_const(airport.runways)[i].ident == wanted) return &std::as_const(airport.runways)[i];
    return nullptr;
}

void ComputeRunwayWind() {
    const RunwayData* runway = DepartureRunway();
    if (runway == nullptr) return;
    TakeoffApproachState& takeoff = takeoff_approach;
    takeoff.RwyHeading = runway->course;
    const double angle = (takeoff.RefWindDir - takeoff.RwyHeading) * kRadPerDeg;
    takeoff.HeadWindComp = -std::cos(angle) * takeoff.RefWindSpeed;
    takeoff.CrossWindComp = std::sin(angle) * takeoff.RefWindSpeed;
}

bool IsPreflightComplete() {
    const TakeoffApproachState& takeoff = takeoff_approach;
    const bool placed = pos_init.InertialEntryLat != 0;
    const bool loaded = ZeroFuelWeight() > 0 && perf.resv_fuel > 0 && perf.cruise_alt >= 1;
    const bool has_takeoff = takeoff.to_flaps > 0 && takeoff.v1 > 0 && takeoff.vr > 0 && takeoff.v2 > 0;
    return placed && loaded && perf.cost_index >= 0 && has_takeoff && IsRouteActive() &&
           plan.active.ends.dep_runway != kNotSelected;
}
