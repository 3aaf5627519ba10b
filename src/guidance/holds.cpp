#include "guidance/holds.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/angles.h"
#include "base/numbers.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/path.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/vertical_segment.h"
#include "guidance/sequencing.h"
#include "navdata/from_aircraft.h"
#include "platform/host.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kExitHold = 3;
constexpr int kLastPoint = 4;

// The points in the order in which they are flown; [0] is the fix, where the pattern is entered.
struct Pattern {
    std::array<LatLon, 5> points;
    std::array<double, 5> courses;  // degrees true, of the leg that starts at the point
    double length;                  // nm, of the straight legs
};

const char* const kPointNames[] = {"", "Xwind", "Dwind", "Base", "Final"};

// The active plan's next hold; those of a modification have no leg in it yet. 0 = none.
int HoldAhead() {
    int next = 0;
    for (int i = 1; i <= HoldRecordCount(); ++i) {
        const int leg = plan.HoldList[i].leg;
        if (leg > 0 && leg >= plan.active.stpos && (next == 0 || leg < plan.HoldList[next].leg)) next = i;
    }
    return next;
}

void TakeVariation(HoldRecord& hold) {
    constexpr double kNear = 20;
    if (hold.magvar_pending <= 0) return;
    if (FromAircraft(hold.points[0].lat, hold.points[0].lon).dist >= kNear) return;
    hold.magvar = WholeNumber(std::round(sim.mgvar));
    hold.magvar_pending = 0;
}

Pattern LayPattern(HoldRecord& hold) {
    if (hold.use_time == 1) hold.leg_dist = lnav.hold_speed / 60.0 * hold.leg_time;
    const double inbound = FoldBearing(hold.inbound_crs + hold.magvar);
    const double turn = hold.right_turn == 1 ? 90 : -90;
    const double xwind = FoldBearing(inbound + turn);
    const double dwind = FoldBearing(xwind + turn);
    const double base = FoldBearing(dwind + turn);
    Pattern pattern;
    pattern.length = hold.leg_dist * 1.5;
    pattern.courses = {inbound, xwind, dwind, base, inbound};
    const double side = 0.6 * pattern.length;
    const double lengths[] = {0.2 * pattern.length, side, pattern.length, side};
    pattern.points[0] = {hold.points[0].lat, hold.points[0].lon};
    for (std::size_t i = 0; i < kLastPoint; ++i)
        pattern.points[i + 1] =
            ProjectPoint(pattern.points[i].lat, pattern.points[i].lon, pattern.courses[i], lengths[i]);
    return pattern;
}

void StorePattern(const Pattern& pattern, HoldRecord& hold) {
    for (std::size_t i = 1; i <= kLastPoint; ++i) {
        HoldPoint& point = hold.points[i];
        point.lat = pattern.points[i].lat;
        point.lon = pattern.points[i].lon;
        point.course = pattern.courses[i];
        if (point.name != kPointNames[i]) point.name = kPointNames[i];
    }
}

// Where the aircraft is against the point that it flies to, and the segment that leads there.
struct Progress {
    DistBearing to_point;
    DistBearing segment;
};

Progress MeasureProgress(const Pattern& pattern) {
    const LatLon point = pattern.points[static_cast<std::size_t>(lnav.hold_point)];
    const LatLon previous = pattern.points[static_cast<std::size_t>(lnav.hold_prev_point)];
    return {FromAircraft(point.lat, point.lon),
            GreatCircle(previous.lat, previous.lon, point.lat, point.lon)};
}

bool IsPointReached(const Pattern& pattern) {
    const Progress progress = MeasureProgress(pattern);
    if (progress.to_point.dist <= 0.25 * pattern.length) return true;
    if (lnav.hold_point == 0) return progress.to_point.dist <= lnav.wpt_chg_dist;
    return progress.to_point.dist > 2.5 * progress.segment.dist ||
           BearingDifference(progress.to_point.bearing, progress.segment.bearing) > 90;
}

void FlyToNextPoint() {
    if (lnav.hold_point == 0) {
        lnav.holding = 1;
        lnav.hold_exit = 0;
    }
    lnav.hold_point = lnav.hold_point % kLastPoint + 1;
    lnav.hold_prev_point = lnav.hold_point == 1 ? kLastPoint : lnav.hold_point - 1;
}

void SteerInPattern(const Pattern& pattern, const HoldRecord& hold) {
    constexpr double kLookahead = 1;
    const Progress progress = MeasureProgress(pattern);
    const LatLon previous = pattern.points[static_cast<std::size_t>(lnav.hold_prev_point)];
    const LatLon aim = ProjectPoint(previous.lat, previous.lon, progress.segment.bearing,
                                    progress.segment.dist - progress.to_point.dist + kLookahead);
    const double bearing = FromAircraft(aim.lat, aim.lon).bearing;
    lnav.hold_hdg = FoldBearing(bearing - (lnav.true_reference == 1 ? 0 : hold.magvar));
}

void StopHolding() {
    lnav.holding = 0;
    lnav.hold_point = 0;
    lnav.hold_prev_point = 0;
}

// The aircraft leaves from where it is in the pattern. At the plan's last fix it flies there once more.
void LeaveHold(int index) {
    RemoveHoldRecord(index);
    StopHolding();
    lnav.hold_exit = 0;
    if (plan.active.stpos < plan.active.leg_cnt)
        SequenceLeg();
    else if (vnav.toc == 0)
        FindNextClimbRestriction();
}

}  // namespace

void HoldUpdate() {
    const int index = HoldAhead();
    if (index == 0) {
        if (lnav.holding == 1) StopHolding();
        return;
    }
    lnav.hold_point = std::clamp(lnav.hold_point, 0, kLastPoint);  // the points are indexed by them
    lnav.hold_prev_point = std::clamp(lnav.hold_prev_point, 0, kLastPoint);
    HoldRecord& hold = plan.HoldList[index];
    TakeVariation(hold);
    const Pattern pattern = LayPattern(hold);
    if (lnav.lnav_engaged == 1) StorePattern(pattern, hold);
    if (hold.leg != plan.active.stpos) {
        if (lnav.holding == 1) StopHolding();
        return;
    }
    if (lnav.holding == 1 && lnav.hold_exit == kExitHold && IsRouteSettled()) {
        LeaveHold(index);
        return;
    }
    if (IsPointReached(pattern)) FlyToNextPoint();
    if (lnav.hold_point > 0) SteerInPattern(pattern, hold);
}

void ExitHold() {
    if (IsRouteSettled()) AdvanceRouteState();
}

void NextHold(int side) {
    constexpr int kMostSelectableHolds = 5;
    if (plan.hold_cnt >= kMostSelectableHolds) return;
    lnav.further_hold = 2;
    lnav.hold_select_due = side;
}
