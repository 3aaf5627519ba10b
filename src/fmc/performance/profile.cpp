#include "fmc/performance/profile.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "fmc/legs/find_leg.h"
#include "fmc/performance/performance_tables.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/winds.h"
#include "frame/crew_messages.h"
#include "navdata/geodesy.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kInMotion = 100;  // kt; from here on the first stretch begins at the aircraft

// The route from one place to the next.
struct Stretch {
    int to;           // leg at its end
    double lat, lon;  // its beginning
    double dist;      // nm
    double begins;    // nm along the route from the first stretch's beginning
};
using Route = std::vector<Stretch>;

bool IsFlown(const FlightPlanLeg& leg) {
    return IsPlace(leg) && !IsOfMissedApproach(leg);
}

FlightPlanLeg& LegOf(const Stretch& stretch) {
    return plan.active.legs[stretch.to];
}

Route RouteAhead() {
    Route route;
    const int first = plan.active.stpos;
    if (first < 1 || first > plan.active.leg_cnt) return route;
    const bool from_aircraft = sim.ground_speed_kt > kInMotion;
    const FlightPlanLeg& before = FlightPlanLegAt(std::max(PlaceBefore(plan.active.legs, first), 0));
    double lat = from_aircraft ? sim.plane_lat : before.lat, lon = from_aircraft ? sim.plane_lon : before.lon;
    double begins = 0;
    for (int i = first; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!IsFlown(leg)) continue;
        const double dist = GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        route.push_back({i, lat, lon, dist, begins});
        begins += dist;
        lat = leg.lat;
        lon = leg.lon;
    }
    return route;
}

double LengthOf(const Route& route) {
    return route.empty() ? 0 : route.back().begins + route.back().dist;
}

// Where a distance along the route lies, and the index before the leg that it lies on.
LatLon PointAt(const Route& route, double along, int& leg_before) {
    const Stretch* on = &route.front();
    for (const Stretch& stretch : route)
        if (stretch.begins <= along) on = &stretch;
    const FlightPlanLeg& end = LegOf(*on);
    leg_before = on->to - 1;
    if (on->dist <= 0) return {end.lat, end.lon};
    const double bearing = GreatCircle(on->lat, on->lon, end.lat, end.lon).bearing;
    return ProjectPoint(on->lat, on->lon, bearing, std::clamp(along - on->begins, 0.0, on->dist));
}

// --- altitudes

double CutToTen(double altitude) {
    return altitude > 100 ? std::floor(altitude / 10) * 10 : altitude;
}
double RoundToTen(double altitude) {
    return altitude > 100 ? std::round(altitude / 10) * 10 : altitude;
}

// An end of the route without a constraint counts with its elevation.
double EndAltitude(const FlightPlanLeg& end, const AirportData& airport) {
    if (end.alt_restr != kNone) return end.alt_restr;
    if (IsAirport(end) && airport.ident == end.ident) return airport.elevation_ft;
    return IsAirport(end) && end.alt != kNone ? end.alt : 0;
}

double StartAltitude() {
    return sim.ground_speed_kt < kInMotion ? EndAltitude(FlightPlanLegAt(0), airports.origin_airport)
                                           : sim.ind_alt_ft;
}

// What a constraint makes of an altitude that the aircraft would climb to.
double HeldInClimb(const FlightPlanLeg& leg, double altitude) {
    if (!HasAltitudeRestr(leg)) return altitude;
    if (leg.restr_type == kAtOrAbove && !HasWindow(leg)) return altitude;
    const double most = leg.alt_restr > 0 ? leg.alt_restr : leg.block_below;
    return most > 0 ? std::min(altitude, most) : altitude;
}

// What it makes of one that the path of the descent would have there.
double HeldInDescent(const FlightPlanLeg& leg, double altitude) {
    if (!HasAltitudeRestr(leg)) return altitude;
    if (HasWindow(leg))
        return std::min(std::max(altitude, leg.block_above), std::max(leg.block_below, leg.block_above));
    if (leg.alt_restr <= 0) return altitude;
    switch (leg.restr_type) {
        case kAt:
            return leg.alt_restr;
        case kAtOrAbove:
            return std::max(altitude, leg.alt_restr);
        case kAtOrBelow:
            return std::min(altitude, leg.alt_restr);
        default:
            return altitude;
    }
}

// --- climb

constexpr double kMinutes = 60;

double ClimbSpeed(double wind) {  // nm a minute
    return std::max(wind + predictions.clb_tas, 1.0) / kMinutes;
}

// The wind of a stretch stands with the leg that it begins at.
double& WindOf(const Stretch& stretch) {
    return plan.active.legs[std::max(PlaceBefore(plan.active.legs, stretch.to), 0)].along_wind;
}

void TakeWinds(const Route& route) {
    for (const Stretch& stretch : route)
        WindOf(stretch) = LegWind(std::max(PlaceBefore(plan.active.legs, stretch.to), 0), stretch.to);
}

// Distance to the point at which the climb reaches the cruise altitude, at most the route's length.
double ClimbDistance(const Route& route, double cruise_alt) {
    double altitude = StartAltitude();
    if (altitude >= cruise_alt) return 0;
    const double weight = GrossWeight();
    const double near = 1.25 * (cruise_alt - sim.ind_alt_ft) / ClimbRate(weight, sim.ind_alt_ft).rate *
                        predictions.clb_tas / kMinutes;
    for (const Stretch& stretch : route) {
        const double rate = ClimbRate(weight, altitude).rate;
        const double speed = ClimbSpeed(WindOf(stretch));
        double reached = CutToTen(altitude + rate / speed * stretch.dist);
        // A constraint at the end of a leg longer than the whole climb is met by waiting, not by climbing
        // slowly.
        if (stretch.dist <= near) reached = HeldInClimb(LegOf(stretch), reached);
        if (reached >= cruise_alt)
            return stretch.begins + stretch.dist -
                   std::min(speed / rate * (reached - cruise_alt), stretch.dist);
        altitude = std::max(reached, altitude);
    }
    return LengthOf(route);
}

void PlaceTopOfClimb(const Route& route, double cruise_alt) {
    predictions.dist_to_toc = ClimbDistance(route, cruise_alt);
    const LatLon at = PointAt(route, predictions.dist_to_toc, vnav.toc_stpos);
    vnav.toc_lat = at.lat;
    vnav.toc_lon = at.lon;
    vnav.cross_at_elev = cruise_alt;
}

double TopAltitude(double cruise_alt) {
    for (int i = plan.active.stpos; i <= plan.active.leg_cnt; ++i)
        cruise_alt = std::max(cruise_alt, FlightPlanLegAt(i).step_alt);
    return cruise_alt;
}

// Altitudes in climb and cruise; what stops the climb below the top is what is to be crossed next.
void FillForward(const Route& route, double cruise_alt) {
    double altitude = vnav.toc == 1 ? cruise_alt : StartAltitude(), level = cruise_alt;
    bool stopped = false;
    for (const Stretch& stretch : route) {
        FlightPlanLeg& leg = LegOf(stretch);
        if (&stretch == &route.back() && IsAirport(leg)) return;
        const double climbed =
            altitude + ClimbRate(GrossWeight(), altitude).rate / ClimbSpeed(WindOf(stretch)) * stretch.dist;
        level = std::max(level, leg.step_alt);
        const double free = std::min(CutToTen(climbed), level);
        const bool climbing = vnav.toc == 0 && altitude < cruise_alt;
        leg.alt = climbing ? HeldInClimb(leg, free) : level;
        if (climbing && leg.alt < free && !stopped) {
            vnav.cross_at_elev = leg.alt;
            stopped = true;
        }
        altitude = std::max(leg.alt, altitude);
    }
}

// --- descent

double RateOfDescent() {
    constexpr double kFastest = 2100;
    const double rate = std::floor((cfg.DescFpa * 100 * predictions.des_tas / kMinutes + 50) / 100) * 100;
    return std::clamp(rate, 100.0, kFastest);
}

// Altitudes from the destination back up to the top; gives the distance from it at which the descent begins.
// A leg passes the path when it lies below what the climb and the cruise have filled in.
double FillBackward(const Route& route, double top) {
    if (route.empty()) return 0;
    FlightPlanLeg& dest = LegOf(route.back());
    double altitude = EndAltitude(dest, airports.dest_airport), sum = 0;
    dest.alt = altitude;
    double pending = 0;  // of stretches whose end is no place of the path
    for (std::size_t i = route.size(); i-- > 0;) {
        const double speed = std::max(predictions.des_tas + DescentWind(route[i].to), 1.0) / kMinutes;
        const double dist = route[i].dist + pending;
        const double climbed = altitude + predictions.tod_rod / speed * dist;
        if (climbed >= top) return sum + std::max(dist - speed / predictions.tod_rod * (climbed - top), 0.0);
        if (i == 0) return sum + dist;
        FlightPlanLeg& before = LegOf(route[i - 1]);
        pending = IsMissedPoint(before) ? dist : 0;  // the runway is what is aimed at
        if (pending > 0) {
            before.alt =
                std::min(RoundToTen(altitude + predictions.tod_rod / speed * route[i].dist), before.alt);
            continue;
        }
        sum += dist;
        altitude = HeldInDescent(before, RoundToTen(climbed));
        if (altitude >= top) return sum;
        before.alt = vnav.tod == 1 ? altitude : std::min(altitude, before.alt);
    }
    return sum;
}

void PlaceTopOfDescent(const Route& route, double from_dest) {
    vnav.tod_from_dest = from_dest;
    predictions.dist_to_tod = std::max(LengthOf(route) - from_dest, 0.0);
    const LatLon at = PointAt(route, predictions.dist_to_tod, vnav.tod_stpos);
    vnav.tod_lat = at.lat;
    vnav.tod_lon = at.lon;
}

// From the missed approach point on, at 2000 feet a minute.
void FillMissedApproach() {
    constexpr double kRate = 2000;
    const FlightPlanLeg* before = nullptr;
    for (int i = 1; i <= plan.active.leg_cnt; ++i) {
        FlightPlanLeg& leg = plan.active.legs[i];
        if (before != nullptr && IsOfMissedApproach(leg) && IsPlace(leg)) {
            const double dist = GreatCircle(before->lat, before->lon, leg.lat, leg.lon).dist;
            const double climbed = before->alt + kRate / ClimbSpeed(LegWind(i - 1, i)) * dist;
            leg.alt = HeldInClimb(leg, CutToTen(climbed));
        }
        if (IsMissedPoint(leg) || (before != nullptr && IsOfMissedApproach(leg) && IsPlace(leg)))
            before = &leg;
    }
}

// --- phases

enum class Phase { kClimb, kCruise, kDescent };

// 0 behind a top that has been passed; without an end of the climb the descent begins where it would.
double ClimbEnd() {
    return vnav.toc == 1 || vnav.tod == 1 ? 0 : predictions.dist_to_toc;
}
double DescentStart() {
    return vnav.tod == 1 ? 0 : predictions.dist_to_tod;
}

Phase PhaseAt(double along) {
    if (along >= DescentStart()) return Phase::kDescent;
    return along <= ClimbEnd() ? Phase::kClimb : Phase::kCruise;
}

double Lower(double speed, double limit) {
    return limit > 0 ? std::min(speed, limit) : speed;
}

void FillSpeeds(const Route& route) {
    for (const Stretch& stretch : route) {
        FlightPlanLeg& leg = LegOf(stretch);
        if (HasSpeedRestr(leg)) continue;
        switch (PhaseAt(stretch.begins + stretch.dist)) {
            case Phase::kClimb:
                leg.ias_restr = perf.speeds.climb_ias;
                leg.mach_restr = perf.speeds.climb_mach;
                if (leg.alt <= cfg.ClbTransAltRest)
                    leg.ias_restr = Lower(Lower(perf.speeds.climb_ias, cfg.ClbTransSpdRest), perf.spd_limit);
                if (leg.alt <= cfg.ClbAltRest) leg.ias_restr = Lower(leg.ias_restr, cfg.ClbSpdRest);
                break;
            case Phase::kCruise:
                leg.ias_restr = perf.speeds.cruise_ias;
                leg.mach_restr = perf.speeds.cruise_mach;
                break;
            case Phase::kDescent:
                leg.ias_restr = perf.speeds.descent_ias;
                leg.mach_restr = perf.speeds.descent_mach;
                if (leg.alt <= cfg.DescTransAltRest)
                    leg.ias_restr =
                        Lower(Lower(perf.speeds.descent_ias, cfg.DescTransSpdRest), perf.spd_limit);
                if (leg.alt <= cfg.DesAltRest) leg.ias_restr = Lower(leg.ias_restr, cfg.DesSpdRest);
                break;
        }
    }
}

// --- fuel and winds

struct PhaseSums {
    double flow = 0, wind = 0, dist = 0;
    int legs = 0, wind_legs = 0;
    double MeanFlow(double otherwise) const { return legs > 0 ? flow / legs : otherwise; }
    double MeanWind() const { return wind_legs > 0 ? wind / wind_legs : 0; }
};

struct Flow {
    double pounds_an_hour, knots;
};
Flow FlowAt(Phase phase, double weight, double altitude) {
    switch (phase) {
        case Phase::kClimb: {
            const ClimbPerfRow& row = NearestRow(kClimbPerf, altitude);
            return {row.fuel_flow, row.speed};
        }
        case Phase::kCruise: {
            const CruisePerfRow& row = NearestRow(kCruisePerf, altitude);
            return {row.fuel_flow[NearestPlace(kCruisePerfWeights, weight)], row.speed};
        }
        case Phase::kDescent:
            break;
    }
    const DescentPerfRow& row = NearestRow(kDescentPerf, altitude);
    return {row.fuel_flow, row.speed};
}

// The altitude of the profile at the beginning of a stretch.
double AltitudeBefore(const Route& route, const Stretch& stretch) {
    return &stretch == &route.front() ? StartAltitude() : LegOf(*(&stretch - 1)).alt;
}

// Calls visit(stretch, phase, dist, end along the route, mean altitude). A leg that holds a top counts in
// both phases, with its part in each.
template <class Visit>
void ForEachPart(const Route& route, Visit visit) {
    for (const Stretch& stretch : route) {
        const double end = stretch.begins + stretch.dist;
        const double toc = std::clamp(ClimbEnd(), stretch.begins, end);
        const double tod = std::clamp(DescentStart(), toc, end);
        const double before = AltitudeBefore(route, stretch), behind = LegOf(stretch).alt;
        const double level = std::max(perf.cruise_alt, std::min(before, behind));
        if (toc > stretch.begins)
            visit(stretch, Phase::kClimb, toc - stretch.begins, toc,
                  (before + (toc < end ? level : behind)) / 2);
        if (tod > toc) visit(stretch, Phase::kCruise, tod - toc, tod, level);
        if (end > tod)
            visit(stretch, Phase::kDescent, end - tod, end,
                  ((tod > stretch.begins ? level : before) + behind) / 2);
    }
}

void ComputeBurns(const Route& route) {
    constexpr double kCruiseWindFrom = 120;  // nm from the start
    PhaseSums climb, cruise, descent;
    double weight = predictions.start_weight;
    ForEachPart(route, [&](const Stretch& stretch, Phase phase, double dist, double end, double altitude) {
        const FlightPlanLeg& leg = LegOf(stretch);
        const Flow flow = FlowAt(phase, weight, altitude);
        weight -= dist / flow.knots * flow.pounds_an_hour * (1 + predictions.perf_factor);
        PhaseSums& sums = phase == Phase::kClimb ? climb : phase == Phase::kCruise ? cruise : descent;
        sums.flow += flow.pounds_an_hour;
        sums.dist += dist;
        ++sums.legs;
        if (phase == Phase::kCruise && (end <= kCruiseWindFrom || leg.alt < perf.cruise_alt)) return;
        const int before = std::max(PlaceBefore(plan.active.legs, stretch.to), 0);
        sums.wind += phase == Phase::kDescent ? DescentWind(stretch.to) : LegWind(before, stretch.to);
        ++sums.wind_legs;
    });
    predictions.clb_burn = climb.MeanFlow(kClimbPerf.front().fuel_flow) * 0.9;
    predictions.crz_burn = cruise.MeanFlow(kCruisePerf.front().fuel_flow.front()) * 1.1;
    predictions.des_burn = descent.MeanFlow(kDescentPerf.front().fuel_flow);
    const double whole = climb.dist + cruise.dist + descent.dist;
    if (whole > 0)
        predictions.avg_burn = (predictions.clb_burn * climb.dist + predictions.crz_burn * cruise.dist +
                                predictions.des_burn * descent.dist) /
                               whole;
    predictions.clb_wind = climb.MeanWind();
    predictions.crz_wind = cruise.MeanWind();
    predictions.des_wind = descent.MeanWind();
    const double behind_climb = cruise.dist + descent.dist;
    if (behind_climb > 0)
        predictions.avg_gs = ((predictions.des_tas + predictions.des_wind) * descent.dist +
                              (predictions.crz_tas + predictions.crz_wind) * cruise.dist) /
                             behind_climb;
    const auto per_nm = [](bool over, double burn, double speed) {
        return over || speed <= 0 ? 0 : burn / speed;
    };
    const bool climbed = vnav.toc == 1 || vnav.tod == 1;
    predictions.clb_burn_per_nm =
        per_nm(climbed, predictions.clb_burn, predictions.clb_wind + predictions.clb_tas);
    predictions.crz_burn_per_nm =
        per_nm(vnav.tod == 1, predictions.crz_burn, predictions.crz_wind + predictions.crz_tas);
    predictions.des_burn_per_nm =
        per_nm(false, predictions.des_burn, predictions.des_wind + predictions.des_tas);
}

void PlanTas(double cruise_alt) {
    const double percent = cruise_alt / 2 / 1000 * 1.5;
    predictions.clb_tas = perf.speeds.climb_ias * (1 + percent / 100);
    predictions.des_tas = perf.speeds.descent_ias * (1 + percent / 100);
    predictions.crz_tas = PlanningTas(perf.speeds.cruise_ias, cruise_alt);
}

}  // namespace

void ComputeProfile(double cruise_alt, int) {
    predictions.start_weight = std::max(predictions.start_weight, GrossWeight());
    if (cruise_alt <= 0) perf.cruise_alt = perf.init_cruise_alt = cruise_alt = BestAltitude();
    if (cruise_alt <= 0) return;
    PlanTas(cruise_alt);
    const Route route = RouteAhead();
    if (route.empty()) return;
    TakeWinds(route);
    if (vnav.toc == 0 && vnav.tod == 0) PlaceTopOfClimb(route, cruise_alt);
    if (vnav.tod == 0) FillForward(route, cruise_alt);
    predictions.tod_rod = RateOfDescent();
    const double from_dest = FillBackward(route, TopAltitude(cruise_alt));
    if (vnav.tod == 0) PlaceTopOfDescent(route, from_dest);
    FillSpeeds(route);
    FillMissedApproach();
    if (vnav.toc == 0 && vnav.tod == 0 && predictions.dist_to_tod < predictions.dist_to_toc)
        PostCduMessage("UNABLE CRZ ALT", kEntryError, kHelpTodBeforeToc, kBothSides);
    ComputeBurns(route);
}

void ForgetProfile() {
    vnav.toc = vnav.tod = vnav.init_tod = 0;
    vnav.toc_lat = vnav.toc_lon = vnav.tod_lat = vnav.tod_lon = vnav.step_lat = vnav.step_lon = 0;
    vnav.toc_stpos = vnav.tod_stpos = 0;
    vnav.dist_to_step = predictions.dist_to_toc = predictions.dist_to_tod = 0;
}
