#include "guidance/vnav.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "fmc/legs/find_leg.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/step_point.h"
#include "fmc/performance/vertical_segment.h"
#include "frame/crew_messages.h"
#include "guidance/approach_tuning.h"
#include "guidance/step_climb.h"
#include "guidance/vnav_speed.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/requests.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kAtLevel = 50, kNearLevel = 100;  // ft
constexpr double kFarFromFix = 25;                 // nm

void PassTopOfClimb() {
    if (vnav.toc == 1 || sim.ind_alt_ft < perf.cruise_alt - kAtLevel) return;
    vnav.toc = 1;
    vnav.vnav_spd_pending = 0;
    requests.vnav_phase = kVnavCrzPage;
    FindBottomOfDescent(plan.active.stpos);
    SetCrossAtPoint();
}

// The crew is told once that the MCP altitude still holds the aircraft where the descent is near.
void TellResetMcpAltitude() {
    const bool held = std::round(sim.apalt) >= perf.cruise_alt;
    if (!held) vnav.reset_mcp_told = 0;
    constexpr double kNearDescent = 4.5;  // nm
    const bool near = vnav.tod == 1 || (vnav.toc == 1 && predictions.dist_to_tod <= kNearDescent);
    const bool level = sim.ind_alt_ft >= perf.cruise_alt - kNearLevel;
    if (!held || !near || !level || vnav.vnav_engaged != 1 || cfg.FmcShowResetMCPMsg != 1) return;
    if (vnav.reset_mcp_told == 1) return;
    vnav.reset_mcp_told = 1;
    PostCduMessage("RESET MCP ALT", kAdvisory, kHelpFixedList, kBothSides);
}

// The top of descent lies on the leg that is flown, and the aircraft is nearer its end.
bool IsTopBehindOnLeg() {
    const ActiveLegRecord& leg = plan.active.active_leg;
    const FlightPlanLeg& to = ToLeg();
    constexpr double kOnLeg = 5;  // degrees
    const DistBearing top = GreatCircle(leg.from_lat, leg.from_lon, vnav.tod_lat, vnav.tod_lon);
    const DistBearing whole = GreatCircle(leg.from_lat, leg.from_lon, to.lat, to.lon);
    return top.dist < whole.dist && BearingDifference(top.bearing, whole.bearing) < kOnLeg &&
           FromAircraft(to.lat, to.lon).dist < GreatCircle(vnav.tod_lat, vnav.tod_lon, to.lat, to.lon).dist;
}

bool IsTopPassedOnTheWayHome(double bearing_to_top) {
    constexpr double kSameWay = 20;  // degrees
    const double to_dest = FoldBearing(predictions.dest_brg + sim.mgvar);
    return predictions.dist_to_dest < vnav.tod_from_dest &&
           BearingDifference(bearing_to_top, to_dest) < kSameWay;
}

// From the top along the legs to the fix that ends the segment.
double DistanceFromTopToBottom() {
    double lat = vnav.tod_lat, lon = vnav.tod_lon, dist = 0;
    for (int i = plan.active.stpos; i <= plan.active.bod_pos; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        dist += GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        lat = leg.lat;
        lon = leg.lon;
    }
    return dist;
}

void BeginDescent(bool at_the_top) {
    if (at_the_top) {
        lnav.last_fix_lat = vnav.tod_lat;
        lnav.last_fix_lon = vnav.tod_lon;
        lnav.last_fix_alt = perf.cruise_alt;
    }
    if (vnav.init_tod == 0 && perf.init_cruise_alt == perf.cruise_alt) vnav.init_tod = 1;
    vnav.toc = vnav.tod = 1;
    vnav.spd_limit_done = vnav.leg_speed_taken = 0;
    ++vnav.descent_cnt;
    requests.vnav_phase = kVnavDesPage;
    vnav.tod_stpos = plan.active.stpos;
    FindBottomOfDescent(plan.active.stpos);
    SetCrossAtPoint();
    FindNextDescentRestriction();
    vnav.last_tod_elev = perf.cruise_alt;
    vnav.dist_from_tod_to_bod = DistanceFromTopToBottom();
    if (vnav.vnav_engaged != 1 || autoflight.spd_intv_active == 1) return;
    const FlightPlanLeg& to = ToLeg();
    if (FromAircraft(to.lat, to.lon).dist >= kFarFromFix)
        AimAtSpeed(SpeedRule::kTopOfDescent, perf.speeds.descent_ias);
    else
        vnav.vnav_spd_pending = 0;
}

void PassTopOfDescent() {
    if (vnav.tod == 1 || (vnav.tod_lat == 0 && vnav.tod_lon == 0)) return;
    constexpr double kAtTop = 1.5, kShortcut = 10;  // nm
    const DistBearing top = FromAircraft(vnav.tod_lat, vnav.tod_lon);
    const bool at_the_top = top.dist <= kAtTop;
    const bool shortcut = vnav.tod_shortcut == 1 && top.dist < kShortcut;
    vnav.tod_shortcut = 0;
    // Before the aircraft flies the route there is no top to be past.
    if (sim.on_ground == 1) return;
    if (at_the_top || IsTopBehindOnLeg() || shortcut || IsTopPassedOnTheWayHome(top.bearing))
        BeginDescent(at_the_top);
}

double DistanceToBottom() {
    double dist = 0, lat = sim.plane_lat, lon = sim.plane_lon;
    for (int i = plan.active.stpos; i <= plan.active.bod_pos; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        dist += GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        lat = leg.lat;
        lon = leg.lon;
    }
    return dist;
}

double DistancePastTop() {
    const double direct = FromAircraft(vnav.tod_lat, vnav.tod_lon).dist;
    const int last = PlaceBefore(plan.active.legs, plan.active.stpos);
    if (last < vnav.tod_stpos || last < 0) return direct;
    const FlightPlanLeg& passed = FlightPlanLegAt(last);
    const FlightPlanLeg& to = ToLeg();
    const DistBearing back = FromAircraft(passed.lat, passed.lon);
    const double ahead = FromAircraft(to.lat, to.lon).bearing;
    constexpr double kNotYetPassed = 150;  // degrees
    if (BearingDifference(back.bearing, ahead) < kNotYetPassed) return direct;
    double dist = back.dist, lat = passed.lat, lon = passed.lon;
    for (int i = last - 1; i >= vnav.tod_stpos; --i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        dist += GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        lat = leg.lat;
        lon = leg.lon;
    }
    return dist + GreatCircle(lat, lon, vnav.tod_lat, vnav.tod_lon).dist;
}

// A straight line through the predicted altitudes of the fix behind and the fix ahead.
void FollowPath() {
    vnav.vnav_vert_dev = 0;
    if (vnav.tod != 1 || vnav.toc != 1) return;
    const FlightPlanLeg& to = ToLeg();
    const double leg = GreatCircle(lnav.last_fix_lat, lnav.last_fix_lon, to.lat, to.lon).dist;
    if (leg > 0 && to.alt != kNone && lnav.last_fix_alt != kNone)
        vnav.desc_grad_alt = (lnav.last_fix_alt - to.alt) / leg * std::max(lnav.wpt_dist, 0.0) + to.alt;
    if (IsRouteActive())
        vnav.vnav_vert_dev =
            static_cast<int>(std::round(std::clamp(sim.ind_alt_ft - vnav.desc_grad_alt, -9000.0, 9000.0)));
}

void MeasureSegment() {
    if (vnav.tod == 1) {
        vnav.cross_at_nm = vnav.dist_from_bod = DistanceToBottom();
        vnav.dist_past_tod = DistancePastTop();
        return;
    }
    const FlightPlanLeg& bottom = FlightPlanLegAt(plan.active.bod_pos);
    vnav.dist_from_tod_to_bod = 99;
    vnav.dist_from_bod = 0;
    vnav.cross_at_nm = vnav.toc == 0 ? predictions.dist_to_toc : FromAircraft(bottom.lat, bottom.lon).dist;
}

void ComputeRequiredRate() {
    constexpr double kCruiseDescent = 1800;  // fpm
    vnav.required_vs = 0;
    if (vnav.init_tod != 1) return;
    if (vnav.tod == 0) {
        if (sim.ind_alt_ft >= perf.cruise_alt + kAtLevel) vnav.required_vs = kCruiseDescent;
        return;
    }
    const double minutes = sim.ground_speed_kt > 1 ? vnav.cross_at_nm / (sim.ground_speed_kt / 60) : 0;
    if (sim.ind_alt_ft > vnav.cross_at_elev && minutes > 0)
        vnav.required_vs = (sim.ind_alt_ft - vnav.cross_at_elev) / minutes;
}

}  // namespace

void VnavUpdate() {
    if (plan.active.stpos == kNoPlan) return;
    ComputeDistances();
    TuneApproach();
    if (perf.cruise_alt <= 0) return;
    WatchStepPoint();
    FlyStepClimb();
    PassTopOfClimb();
    PassTopOfDescent();
    TellResetMcpAltitude();
    MeasureSegment();
    FollowPath();
    ComputeRequiredRate();
    LimitSpeedOnTheWay();
    VnavSpeedStep();
}
