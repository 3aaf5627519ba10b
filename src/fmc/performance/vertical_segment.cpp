#include "fmc/performance/vertical_segment.h"

#include <algorithm>

#include "navdata/geodesy.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/vnav.h"

namespace {

// The altitude of a constraint: of a window the limit that binds.
double ConstraintAltitude(const FlightPlanLeg& leg, double window_limit) {
    return leg.alt_restr > 0 ? leg.alt_restr : std::max(window_limit, 0.0);
}

// At or above: the following constraints that the same altitude satisfies prolong the segment.
int ProlongSegment(int start) {
    int end = start;
    const double altitude = FlightPlanLegAt(start).alt_restr;
    for (int i = start + 1; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (IsOfMissedApproach(leg) || !HasAltitudeRestr(leg)) continue;
        const bool met = leg.restr_type == kBetween
                             ? leg.block_above <= altitude
                             : leg.restr_type != kAtOrBelow && leg.alt_restr == altitude;
        if (!met) break;
        end = i;
    }
    return end;
}

double RouteDistance(int from, int to) {
    double dist = 0;
    int last = from;
    for (int i = from + 1; i <= to; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (IsOfMissedApproach(leg) || IsDisco(leg)) continue;
        const FlightPlanLeg& start = FlightPlanLegAt(last);
        dist += GreatCircle(start.lat, start.lon, leg.lat, leg.lon).dist;
        last = i;
    }
    return dist;
}

double NextRestriction(int first, int last, bool (*binds)(const FlightPlanLeg&),
                       double FlightPlanLeg::*window_limit) {
    if (plan.active.stpos == kNoPlan) return 0;
    for (int i = std::max(first, plan.active.stpos); i <= last; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (IsOfMissedApproach(leg) || !HasAltitudeRestr(leg) || !binds(leg)) continue;
        return ConstraintAltitude(leg, leg.*window_limit);
    }
    return 0;
}

}  // namespace

void FindBottomOfDescent(int first) {
    const int before = plan.active.bod_pos;
    plan.active.bod_pos = plan.active.leg_cnt;
    for (int i = first; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (IsOfMissedApproach(leg) || !HasAltitudeRestr(leg)) continue;
        const RestrType other = vnav.toc == 0 ? kAtOrBelow : kAtOrAbove;
        if (leg.restr_type != kAt && leg.restr_type != other) continue;
        plan.active.bod_pos = leg.restr_type == kAtOrAbove ? ProlongSegment(i) : i;
        break;
    }
    if (vnav.tod != 1 || plan.active.bod_pos == before) return;
    const FlightPlanLeg& to = FlightPlanLegAt(plan.active.stpos);
    if (HasAltitudeRestr(to)) {
        vnav.last_tod_pos = plan.active.stpos;
        vnav.last_tod_elev = ConstraintAltitude(to, to.block_above);
    }
    vnav.dist_from_tod_to_bod = RouteDistance(vnav.last_tod_pos, plan.active.bod_pos);
}

void SetCrossAtPoint() {
    constexpr double kLowestCruise = 1000;
    if (perf.cruise_alt < kLowestCruise) return;
    vnav.cross_at_elev = perf.cruise_alt;
    const FlightPlanLeg& bottom = FlightPlanLegAt(plan.active.bod_pos);
    const double lower_limit = std::min(bottom.block_above, bottom.block_below);
    if (vnav.toc == 0 && vnav.tod == 0) {
        const bool levels_off = plan.active.bod_pos <= vnav.toc_stpos && HasAltitudeRestr(bottom) &&
                                bottom.restr_type != kAtOrAbove;
        vnav.cross_at_lat = levels_off ? bottom.lat : vnav.toc_lat;
        vnav.cross_at_lon = levels_off ? bottom.lon : vnav.toc_lon;
        if (levels_off) vnav.cross_at_elev = ConstraintAltitude(bottom, lower_limit);
        return;
    }
    vnav.cross_at_lat = bottom.lat;
    vnav.cross_at_lon = bottom.lon;
    if (vnav.tod == 0) return;
    if (HasAltitudeRestr(bottom))
        vnav.cross_at_elev = ConstraintAltitude(bottom, lower_limit);
    else
        vnav.cross_at_elev = bottom.alt != kNone ? bottom.alt : bottom.alt_restr;
}

void FindNextClimbRestriction() {
    const bool has_top = vnav.toc_lat != 0 || vnav.toc_lon != 0;
    vnav.clb_next_restr_alt = NextRestriction(
        1, has_top ? vnav.toc_stpos : plan.active.leg_cnt,
        [](const FlightPlanLeg& leg) { return leg.restr_type != kAtOrAbove; }, &FlightPlanLeg::block_below);
}

void FindNextDescentRestriction() {
    vnav.des_next_restr_alt = NextRestriction(
        vnav.tod == 1 ? 1 : vnav.tod_stpos + 1, plan.active.leg_cnt,
        [](const FlightPlanLeg& leg) { return leg.restr_type != kAtOrBelow; }, &FlightPlanLeg::block_above);
}
