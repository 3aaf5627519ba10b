#include "guidance/lnav.h"

#include <cmath>

#include "base/angles.h"
#include "base/numbers.h"
#include "base/text.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/path.h"
#include "fmc/performance/vertical_segment.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "guidance/holds.h"
#include "guidance/sequencing.h"
#include "guidance/turn_log.h"
#include "guidance/vnav.h"
#include "navdata/from_aircraft.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "state/vnav.h"

namespace {

constexpr int kForcedPassPhase = 8;
constexpr double kSequenceNow = -1;  // of wpt_dist
constexpr double kAirborneFt = 400;  // radio altitude below which the plan stands still
constexpr double kNoCrossTrack = -99;

bool IsAirborne() {
    return sim.radio_alt_ft > kAirborneFt;
}

bool IsMissedApproachPoint() {
    return IsMissedPoint(ToLeg());
}

double TrueHeading() {
    return FoldBearing(sim.mag_hdg + sim.mgvar);
}

// EXEC, a hold's exit or a loaded state may have changed the active leg since the last tick; then its
// distances are not yet those of the new leg, and nothing may sequence by the old ones.
void FollowActiveLeg() {
    if (!IsActiveLegLocated()) BeginActiveLeg();
    if (LegAfter(plan.active.stpos) != 0) lnav.plan_finished = 0;
}

// The TO fix has been overflown on a wide turn: it lies near, and behind the direction of its leg.
bool IsOverflownOnWideTurn() {
    return lnav.lnav_engaged == 1 && sim.ap_master != 0 && lnav.wpt_dist < 10 &&
           plan.active.stpos < plan.active.leg_cnt - 1 && ToLeg().hold_pos == 0 &&
           BearingDifference(lnav.wpt_brg + ReferenceVariation(), lnav.course_here) > 90;
}

bool IsTargetFixPassed() {
    const FlightPlanLeg& to = ToLeg();
    return TargetFixPassed(sim.plane_lat, sim.plane_lon, TrueHeading(), lnav.course_here, to.lat, to.lon);
}

// While a hold is flown, on a heading leg and behind the last fix, nothing sequences by itself.
bool MaySequenceByItself() {
    return lnav.holding == 0 && lnav.plan_finished == 0 && !IsVectorsLegActive();
}

// True when the fix counts as reached whatever the heading.
bool RequestForcedSequence() {
    if (!MaySequenceByItself()) return false;
    const bool overflown = IsOverflownOnWideTurn();
    if (overflown) {
        vnav.vnav_spd_pending = 0;
        if (vnav.toc == 1 && vnav.tod == 0) vnav.tod_shortcut = 1;
        lnav.wpt_dist = kSequenceNow;
    }
    const bool after_activation = plan.direct_abeam_check == 1 && plan.active.stpos == 1;
    plan.direct_abeam_check = 0;
    const bool in_flight = IsAirborne() && IsRouteActive() && sim.ground_speed_kt > 100;
    if ((in_flight || after_activation) && IsTargetFixPassed()) lnav.wpt_dist = kSequenceNow;
    return overflown;
}

// The course to the next place of the plan: true, as it stands beside the magnetic leg course.
double CourseOfNextLeg() {
    const FlightPlanLeg& to = ToLeg();
    for (int next = LegAfter(plan.active.stpos); next != 0; next = LegAfter(next)) {
        const FlightPlanLeg& leg = FlightPlanLegAt(next);
        if (IsVectors(leg)) return leg.from_hdg;
        const DistBearing course = GreatCircle(to.lat, to.lon, leg.lat, leg.lon);
        if (course.dist > 0) return course.bearing;
    }
    return lnav.leg_crs;
}

void UpdateWaypointChangeDistance() {
    if (plan.active.stpos >= plan.active.leg_cnt) return;
    constexpr double kTurnMattersNm = 15;
    if (ToLeg().flyover == 1) {
        lnav.turn_code = kTurnOfFlyOverFix;
        lnav.wpt_chg_dist = FlyOverDistance(sim.ground_speed_kt);
        return;
    }
    if (lnav.wpt_dist >= kTurnMattersNm) {
        lnav.turn_code = kTurnOfFarFix;
        return;
    }
    const FixTurn turn = TurnAtFix(lnav.leg_crs, CourseOfNextLeg(), sim.ground_speed_kt);
    lnav.turn_code = lnav.turn_angle = turn.angle;
    lnav.turn_radius = turn.radius;
    lnav.wpt_chg_dist = turn.begins;
    if (lnav.turn_angle > 120 && lnav.wpt_chg_dist > 5 && lnav.wpt_dist > 5)
        lnav.wpt_chg_dist = lnav.wpt_dist * 0.5;
}

// On the tick on which the TO fix comes near, the vertical segment is looked at anew, and the time is noted.
void ApproachFix() {
    if (lnav.wpt_dist >= lnav.wpt_chg_dist || plan.active.stpos >= plan.active.leg_cnt) {
        lnav.fix_near = 0;
        return;
    }
    if (lnav.fix_near == 0) {
        FindBottomOfDescent(plan.active.stpos + 1);
        SetCrossAtPoint();
        lnav.fix_near = 1;
    }
    FlightPlanLeg& to = plan.active.legs[plan.active.stpos];
    if (sim.ground_speed_kt > 65 && to.ata.empty())
        to.ata = Format("%02d:%02d", sim.utc_hours, sim.utc_minutes);
}

bool IsFixReached(bool whatever_heading) {
    if (lnav.plan_finished == 1 || lnav.wpt_dist >= lnav.wpt_chg_dist) return false;
    const bool forced = lnav.force_sequence == 1;
    if (!IsAirborne() && !IsMissedApproachPoint() && !forced) return false;
    if (lnav.holding == 1) return false;
    if (forced || lnav.wpt_dist == 0 || whatever_heading) return true;
    if (IsVectorsLegActive()) return false;
    return BearingDifference(TrueHeading(), lnav.course_here) < 91;
}

double LookaheadDistance() {
    double dist = LnavLookahead(sim.tas_kt);
    if (sim.sim_rate == 4) dist += 1;
    if (sim.sim_rate == 8) dist += 2;
    if (sim.sim_rate == 16) dist += 3;
    return dist;
}

void AimAt(LatLon point) {
    lnav.aim_lat = point.lat;
    lnav.aim_lon = point.lon;
    const double bearing = FromAircraft(point.lat, point.lon).bearing;
    lnav.fms_hdg = FoldBearing(bearing - ReferenceVariation());
}

void SteerToJoinTrack() {
    const double length =
        GreatCircle(lnav.lnav_init_lat, lnav.lnav_init_lon, lnav.lnav_join_trk_lat, lnav.lnav_join_trk_lon)
            .dist;
    const double left = FromAircraft(lnav.lnav_join_trk_lat, lnav.lnav_join_trk_lon).dist;
    AimAt(ProjectPoint(lnav.lnav_init_lat, lnav.lnav_init_lon, FoldBearing(lnav.lnav_join_trk + sim.mgvar),
                       length - left + lnav.lookahead));
    if (lnav.xtk > lnav.wpt_chg_dist) return;
    lnav.lnav_init_mode = 0;
    const FlightPlanLeg& before = FlightPlanLegAt(LegBefore(plan.active.stpos));
    plan.active.active_leg.from = before.ident;
    plan.active.active_leg.from_lat = before.lat;
    plan.active.active_leg.from_lon = before.lon;
}

void SteerAlongLeg() {
    if (lnav.true_reference == 1) {
        lnav.fms_hdg = lnav.wpt_brg;
        return;
    }
    const ActiveLegRecord& leg = plan.active.active_leg;
    const double flown = lnav.wpt_dist > lnav.leg_len ? 0 : lnav.leg_len - lnav.wpt_dist;
    AimAt(ProjectPoint(leg.from_lat, leg.from_lon, FoldBearing(lnav.leg_crs + sim.mgvar),
                       flown + lnav.lookahead));
    lnav.fms_hdg = LnavBearing(lnav.fms_hdg, lnav.wpt_brg);
}

// A procedure may demand the longer way round at the fix just passed.
void TurnAsDemanded() {
    const FlightPlanLeg& passed = FlightPlanLegAt(LegBefore(plan.active.stpos));
    if (passed.dep_turn != kTurnLeft && passed.dep_turn != kTurnRight) return;
    const double heading = FoldBearing(sim.mag_hdg + sim.mgvar - ReferenceVariation());
    constexpr double kSettled = 10;  // an overshoot is no turn the other way
    if (BearingDifference(heading, lnav.fms_hdg) <= kSettled ||
        TurnSide(heading, lnav.fms_hdg) == passed.dep_turn)
        return;
    if (FromAircraft(passed.lat, passed.lon).dist > lnav.passed_chg_dist) return;
    lnav.fms_hdg = FoldBearing(passed.dep_turn == kTurnLeft ? heading - 90 : heading + 90);
}

void Steer() {
    lnav.lookahead = LookaheadDistance();
    if (lnav.lnav_init_mode == 1)
        SteerToJoinTrack();
    else
        SteerAlongLeg();
    TurnAsDemanded();
    if (IsVectorsLegActive()) lnav.fms_hdg = ToLeg().from_hdg;
}

void SendHeadingToHost() {
    if (cfg.LnavDefAp != 1 || lnav.lnav_engaged != 1 || lnav.lnav_init_mode == 1 || IsHoldPatternFlown())
        return;
    if (lnav.fms_hdg == lnav.sent_fms_hdg) return;
    lnav.sent_fms_hdg = lnav.fms_hdg;
    SendKeyEvent(kKeyHeadingSet, WholeNumber(std::round(lnav.fms_hdg)));
}

void RunPass(bool overflown) {
    if (MaySequenceByItself() && (IsAirborne() || IsMissedApproachPoint()) && IsTargetFixPassed()) {
        lnav.wpt_dist = kSequenceNow;
        ApproachFix();
    }
    if (IsFixReached(overflown)) SequenceLeg();
    lnav.true_reference = ReadNamedVar(NamedVar("TZ_OH_HDG_REF_Button")) == 1;
    LocateOnActiveLeg();
    if (time_base.tick_phase == 0) {
        lnav.xtk_shown = lnav.xtk;
        lnav.xtk_side_shown = lnav.xtk_side;
    }
    if (lnav.plan_finished == 0) Steer();
    SendHeadingToHost();
    VnavUpdate();
    LogTurnData();
}

void RemovePassedHolds() {
    for (int i = HoldRecordCount(); i >= 1; --i)
        if (plan.HoldList[i].leg < plan.active.stpos && plan.HoldList[i].pending_leg == 0)
            RemoveHoldRecord(i);
}

}  // namespace

bool IsGuidancePass() {
    const int phase = time_base.tick_phase;
    return phase == 0 || phase == 8 || phase == 12 || time_base.tick2s_phase == 0;
}

bool IsHoldPatternFlown() {
    return lnav.holding == 1 && lnav.hold_point > 0;
}

void LnavUpdate() {
    if (plan.active.stpos == kNoPlan) {
        lnav.xtk = lnav.xtk_shown = kNoCrossTrack;
        lnav.lnav_init_mode = 0;
        lnav.force_sequence = 0;
        lnav.plan_finished = 0;
        if (lnav.holding == 1) HoldUpdate();
        return;
    }
    if (lnav.force_sequence == 1) time_base.tick_phase = kForcedPassPhase;
    FollowActiveLeg();
    const bool overflown = RequestForcedSequence();
    UpdateWaypointChangeDistance();
    if (lnav.force_sequence == 1) lnav.wpt_dist = kSequenceNow;
    ApproachFix();
    RemovePassedHolds();
    HoldUpdate();
    if (IsGuidancePass()) RunPass(overflown);
    lnav.force_sequence = 0;
}
