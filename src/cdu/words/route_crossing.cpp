#include "cdu/words/route_crossing.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

// A stretch of the route, and how far from a line about the fix a place on it is.
struct Stretch {
    LatLon from;
    double bearing, length;
};

// Above 0 on one side of the line, below on the other; of a radial only its own half counts.
struct Side {
    double value;
    bool ahead;
};
Side SideOf(const FixPage& fix, const FixPage::Row& row, LatLon place) {
    const DistBearing line = GreatCircle(fix.lat, fix.lon, place.lat, place.lon);
    if (row.dist > 0) return {line.dist - row.dist, true};
    const double off = (line.bearing - sim.mgvar - row.bearing) * kRadPerDeg;
    return {std::sin(off), std::cos(off) > 0};
}

LatLon At(const Stretch& stretch, double nm) {
    return ProjectPoint(stretch.from.lat, stretch.from.lon, stretch.bearing, nm);
}

// Where between two places with a side each the line is crossed.
std::optional<double> MeetBetween(const FixPage& fix, const FixPage::Row& row, const Stretch& stretch,
                                  double begin, Side first, double end, Side last) {
    if (first.value * last.value > 0) return {};
    constexpr int kHalvings = 16;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (begin + end) / 2;
        const Side side = SideOf(fix, row, At(stretch, middle));
        (side.value * first.value > 0 ? begin : end) = middle;
        last = side;
    }
    if (!last.ahead) return {};
    return end;
}

// A ring may be met twice: before the place nearest to the fix and behind it.
std::optional<double> MeetOn(const FixPage& fix, const FixPage::Row& row, const Stretch& stretch, Side first,
                             Side last) {
    const DistBearing to_fix = GreatCircle(stretch.from.lat, stretch.from.lon, fix.lat, fix.lon);
    const double off = (to_fix.bearing - stretch.bearing) * kRadPerDeg;
    const double abeam = kEarthRadiusNm * std::atan(std::cos(off) * std::tan(to_fix.dist / kEarthRadiusNm));
    if (abeam <= 0 || abeam >= stretch.length)
        return MeetBetween(fix, row, stretch, 0, first, stretch.length, last);
    const Side middle = SideOf(fix, row, At(stretch, abeam));
    if (const auto met = MeetBetween(fix, row, stretch, 0, first, abeam, middle)) return met;
    return MeetBetween(fix, row, stretch, abeam, middle, stretch.length, last);
}

double AltitudeBetween(double from, double to, double part) {
    if (from <= 0 || to <= 0) return std::max(0.0, to);
    return from + (to - from) * part;
}

}  // namespace

std::optional<RouteCrossing> FindRouteCrossing(const FixPage& fix, const FixPage::Row& row) {
    if (fix.ident.empty() || (row.bearing <= 0 && row.dist <= 0)) return {};
    if (row.bearing > 0 && row.dist > 0) {
        const LatLon place = ProjectPoint(fix.lat, fix.lon, FoldBearing(row.bearing + sim.mgvar), row.dist);
        return RouteCrossing{FromAircraft(place.lat, place.lon).dist, 0};
    }
    const RouteVersion& route = plan.active;
    if (!IsRouteActive() || route.stpos == kNoPlan || route.stpos < 1) return {};
    LatLon from = {sim.plane_lat, sim.plane_lon};
    double distance = 0, altitude = sim.ind_alt_ft;
    Side here = SideOf(fix, row, from);
    for (int i = route.stpos; i <= route.leg_cnt; ++i) {
        const FlightPlanLeg& leg = route.legs[i];
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        const DistBearing line = GreatCircle(from.lat, from.lon, leg.lat, leg.lon);
        const Side there = SideOf(fix, row, {leg.lat, leg.lon});
        const auto met = MeetOn(fix, row, {from, line.bearing, line.dist}, here, there);
        if (met && line.dist > 0)
            return RouteCrossing{distance + *met, AltitudeBetween(altitude, leg.alt, *met / line.dist)};
        distance += line.dist;
        altitude = leg.alt;
        from = {leg.lat, leg.lon};
        here = there;
    }
    return {};
}
