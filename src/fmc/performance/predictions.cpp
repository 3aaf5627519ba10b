#include "fmc/performance/predictions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/angles.h"
#include "base/units.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/path.h"
#include "fmc/performance/performance_tables.h"
#include "frame/aircraft.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/identity.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"
#include "state/weights.h"

namespace {

double LimitedRound(double value, double low, double high) {
    return std::clamp(std::round(value), low, high);
}

// Five miles out on the final of the destination's runway, set once per route.
void SetFinalPoint() {
    constexpr double kNear = 30, kFinal = 5;
    const RunwayData* runway = DestinationRunway();
    if (predictions.final_point_set == 1 || predictions.dist_to_dest >= kNear || runway == nullptr) return;
    const double outbound = FoldBearing(runway->course + MagVarAt(runway->lat, runway->lon) + 180);
    const LatLon point = ProjectPoint(runway->lat, runway->lon, outbound, kFinal);
    predictions.final_point_lat = point.lat;
    predictions.final_point_lon = point.lon;
    predictions.final_point_set = 1;
}

// Measured once, for the distances to go are looked at several times a second.
double LegLength(int leg, double from_lat, double from_lon) {
    const FlightPlanLeg& to = FlightPlanLegAt(leg);
    MeasuredLeg& measured = predictions.measured_legs[leg];
    if (measured.from_lat != from_lat || measured.from_lon != from_lon || measured.to_lat != to.lat ||
        measured.to_lon != to.lon)
        measured = {from_lat, from_lon, to.lat, to.lon, GreatCircle(from_lat, from_lon, to.lat, to.lon).dist};
    return measured.dist;
}

}  // namespace

const RunwayData* DestinationRunway() {
    const int place = plan.mod.procedures.fms_dest_rwy_pos;
    const AirportData& airport = airports.dest_airport;
    return place > 0 && place <= airport.runway_cnt ? &std::as_const(airport.runways)[place] : nullptr;
}

double DisplayWeight(double lb) {
    return cfg.WeightUnit == "KGS" ? lb * kKgPerLb : lb;
}

double GrossWeight() {
    if (weights.gross_weight > 0) return weights.gross_weight;
    return sim.empty_weight + sim.payload_weight + sim.total_fuel + perf.FuelEntry;
}

void ComputeDistances() {
    predictions.dist_to_dest = 0;
    if (plan.active.stpos == kNoPlan || plan.active.stpos < 1) return;
    if (vnav.toc == 0) predictions.dist_to_toc = 0;
    if (vnav.tod == 0) predictions.dist_to_tod = 0;
    const GrowingList<FlightPlanLeg>& legs = plan.active.legs;
    double lat = sim.plane_lat, lon = sim.plane_lon;
    int from = PlaceBefore(plan.active.legs, plan.active.stpos);
    double sum = 0;
    for (int i = plan.active.stpos; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = legs[i];
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        const bool from_fix = from >= plan.active.stpos;
        const double length =
            from_fix ? LegLength(i, lat, lon) : GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        // A top that the aircraft has come past on its leg is no longer ahead.
        const auto measure = [&](int passed, int before, double at_lat, double at_lon, double& dist) {
            if (passed == 0 && before >= from && before < i && (at_lat != 0 || at_lon != 0))
                dist = sum + std::max(length - GreatCircle(at_lat, at_lon, leg.lat, leg.lon).dist, 0.0);
        };
        measure(vnav.toc, vnav.toc_stpos, vnav.toc_lat, vnav.toc_lon, predictions.dist_to_toc);
        measure(vnav.tod, vnav.tod_stpos, vnav.tod_lat, vnav.tod_lon, predictions.dist_to_tod);
        sum += length;
        lat = leg.lat;
        lon = leg.lon;
        from = i;
    }
    predictions.dist_to_dest = sum;
    const FlightPlanLeg& last = legs[plan.active.leg_cnt];
    predictions.dest_brg = FoldBearing(FromAircraft(last.lat, last.lon).bearing - sim.mgvar);
    SetFinalPoint();
}

void ApplyCostIndexRow(bool active, int index) {
    for (const CostIndexRow& row : kCostIndexTable) {
        if (row.cost_index != index) continue;
        PlannedSpeeds& set = active ? perf.speeds : plan.mod.entries.speeds;
        for (const auto& [speed, selected] : kPlannedSpeeds)
            if (plan.mod.selected.*selected == 0) set.*speed = row.speeds.*speed;
        return;
    }
}

double EconClimbSpeed(int cost_index) {
    return LimitedRound(kEconClimb.At(GrossWeight(), cost_index), 248, 350);
}

double EconCruiseMach(int cost_index, double altitude) {
    const double height = std::clamp(altitude, 10000.0, 43000.0);
    const double weight = std::min(GrossWeight(), 520000.0);
    constexpr int kHighIndex = 150;
    const auto& table = cost_index == kLongRangeCruise ? kCruiseMachLongRange
                        : cost_index >= kHighIndex     ? kCruiseMachHighIndex
                                                       : kCruiseMachLowIndex;
    return std::clamp(table.At(weight, height), 0.363, 0.89);
}

double EconDescentSpeed(int cost_index) {
    const int index = std::min(cost_index, 119);
    const double weight = std::min(GrossWeight(), 499999.0);
    return LimitedRound(kEconDescent.At(weight, index), 250, 334);
}

double PerfFactor() {
    if (perf.cost_index < 0) return 0;
    const double index = perf.cost_index;
    std::size_t upper = 1;
    while (upper + 1 < kCostIndexTable.size() && index > kCostIndexTable[upper].cost_index) ++upper;
    const double low = kCostIndexTable[upper - 1].cost_index, high = kCostIndexTable[upper].cost_index;
    const double row = static_cast<double>(upper - 1) + std::min((index - low) / (high - low), 1.0);
    return row * 0.0071 - 0.03;
}

int MaxAltitude() {
    return MaxAltitudeFor(GrossWeight());
}

int MaxAltitudeFor(double weight) {
    const double x = weight / 1000;
    const double feet = 0.00012 * x * x * x - 0.26203 * x * x + 121.62431 * x + 27382;
    const double limit = identity.aircraft_model == "900-10" ? 411 : 431;
    return static_cast<int>(std::clamp(std::round(feet / 100 + 0.5), 0.0, limit));
}

int OptimumAltitude() {
    int best = 0;
    for (const WeightAltitude& row : kAltitudeByWeight)
        if (row.weight >= GrossWeight()) best = static_cast<int>(row.altitude / 100);
    return best;
}

double BestAltitude() {
    constexpr double kShortest = 35, kLongest = 450;
    constexpr double kStep = 20;  // nm
    if (plan.active.leg_cnt < 1) return 0;
    const FlightPlanLeg& origin = plan.active.legs[0];
    const FlightPlanLeg& dest = plan.active.legs[plan.active.leg_cnt];
    const double route = GreatCircle(origin.lat, origin.lon, dest.lat, dest.lon).dist;
    if (route <= kShortest || route > kLongest) return 0;
    const double ceiling = std::max(35000.0, kAltitudeByWeight.back().altitude);
    double climbed = std::max(origin.alt, 0.0), descended = std::max(dest.alt, 0.0);
    double weight = ZeroFuelWeight() + 100;
    // Both ends are walked towards each other, the lower one first, until they have used up the route.
    for (double used = 0; used < route && std::min(climbed, descended) < ceiling; used += kStep) {
        const bool climbing = climbed <= descended;
        const ClimbPerfRow& climb = NearestRow(kClimbPerf, climbed);
        const DescentPerfRow& descent = NearestRow(kDescentPerf, descended);
        constexpr double kSpeedLimitAltitude = 10000, kFastestBelow = 300;
        double speed = climbing ? climb.speed : descent.speed;
        if (climbing && climbed < kSpeedLimitAltitude)
            speed = std::min(PlanningTas(cfg.ClbTransSpdRest, climbed), kFastestBelow);
        const double minutes = std::min(kStep, route - used) / speed * 60;
        if (!climbing) {
            descended += cfg.DescFpa * 100 * descent.speed / 60 * minutes;
            continue;
        }
        climbed += climb.rate[NearestPlace(kClimbPerfWeights, weight)] * minutes;
        weight -= climb.fuel_flow / 60 * minutes;
    }
    return std::floor(std::min({climbed, descended, ceiling}) / 100) * 100;
}

ClimbPerformance ClimbRate(double weight, double altitude) {
    const ClimbPerfRow& row = NearestRow(kClimbPerf, altitude);
    if (cfg.RocTest != 1) return {predictions.default_climb_rate, row.fuel_flow};
    const double rate = row.rate[NearestPlace(kClimbPerfWeights, weight)];
    return {rate > 0 ? rate : predictions.default_climb_rate, row.fuel_flow};
}

double IasToMach(double ias, double altitude) {
    const double kelvin = std::max(216.65, 288.15 - altitude / 3.28084 * 0.0065);
    return (altitude / 1000 * 0.018 + 1) * ias / (std::sqrt(kelvin * 401.8812) * 1.94384);
}

double PlanningTas(double ias, double altitude) {
    return ias + altitude / 1000 * 1.5 * ias / 100;
}
