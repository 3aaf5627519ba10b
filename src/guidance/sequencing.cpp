#include "guidance/sequencing.h"

#include <array>

#include "base/angles.h"
#include "base/numbers.h"
#include "base/text.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/path.h"
#include "fmc/performance/flight_log.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/step_point.h"
#include "fmc/performance/vertical_segment.h"
#include "frame/key_events.h"
#include "guidance/vnav_speed.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

void ReportPosition(const FlightPlanLeg& passed) {
    PositionReport& report = plan.PositionReports[1];
    plan.position_report_cnt = 1;
    report.leg = passed;
    report.time = Format("%02d%02dZ", sim.utc_hours, sim.utc_minutes);
    report.altitude = sim.ind_alt_ft;
    report.fuel = DisplayWeight(sim.total_fuel + perf.FuelEntry);
    if (!lnav.report_ident.empty() && lnav.report_ident == passed.ident) lnav.report_due = 1;
}

void LookAtStepClimb(const FlightPlanLeg& passed) {
    if (vnav.toc == 1 && passed.step_alt > perf.cruise_alt) BeginStepClimb(passed.step_alt);
}

// A passed fix no longer constrains.
void ClearConstraint(FlightPlanLeg& passed) {
    passed.restr_code = kFree;
    passed.restr_type = kAt;
}

void ActivateLeg(int to, const FlightPlanLeg& from) {
    const FlightPlanLeg& leg = FlightPlanLegAt(to);
    ActiveLegRecord& active = plan.active.active_leg;
    active.from = from.ident;
    active.from_lat = from.lat;
    active.from_lon = from.lon;
    active.to = leg.ident;
    active.to_lat = leg.lat;
    active.to_lon = leg.lon;
    active.direct_flag = 0;
    plan.active.stpos = to;
    BeginActiveLeg();
    active.course = lnav.leg_crs;
    if (plan.direct_to_pending == 0) plan.mod.active_leg = active;
}

}  // namespace

int LegAfter(int leg) {
    for (int next = leg + 1; next <= plan.active.leg_cnt; ++next)
        if (!IsDisco(FlightPlanLegAt(next))) return next;
    return 0;
}

int LegBefore(int leg) {
    int before = leg - 1;
    while (before > 0 && IsDisco(FlightPlanLegAt(before))) --before;
    return before < 0 ? 0 : before;
}

double ReferenceVariation() {
    return lnav.true_reference == 1 ? 0 : sim.mgvar;
}

bool IsVectorsLegActive() {
    return IsVectors(FlightPlanLegAt(plan.active.stpos));
}

void SequenceLeg() {
    const int next = plan.active.stpos < plan.active.leg_cnt ? LegAfter(plan.active.stpos) : 0;
    if (next == 0) {
        lnav.plan_finished = 1;
        lnav.lnav_engaged = 0;
        return;
    }
    FlightPlanLeg& passed = plan.active.legs[plan.active.stpos];
    FlightLogStep(true);
    ReportPosition(passed);
    ClearConstraint(passed);
    lnav.last_fix_lat = passed.lat;
    lnav.last_fix_lon = passed.lon;
    lnav.last_fix_alt = passed.alt;
    lnav.passed_chg_dist = lnav.wpt_chg_dist;
    LookAtStepClimb(passed);
    ActivateLeg(next, passed);
    FollowSequencing();
    if (vnav.toc == 0)
        FindNextClimbRestriction();
    else if (vnav.tod == 1)
        FindNextDescentRestriction();
    ComputeDistances();
    vnav.vnav_spd_pending = 0;
    VnavSpeedStep();
    lnav.lnav_init_mode = 0;
    lnav.hold_exit = 0;
}

void BeginActiveLeg() {
    LocateOnActiveLeg();
    lnav.wpt_chg_dist = WaypointChangeDistance(kTurnOfFarFix, 0);
    lnav.turn_code = kTurnOfFarFix;
    lnav.fix_near = 0;
    lnav.plan_finished = 0;
}

void LocateOnActiveLeg() {
    const FlightPlanLeg& to = FlightPlanLegAt(plan.active.stpos);
    const LegPosition place = LocateOnLeg(sim.plane_lat, sim.plane_lon, plan.active.active_leg.from_lat,
                                          plan.active.active_leg.from_lon, to.lat, to.lon);
    lnav.leg_len = place.leg_len;
    lnav.leg_crs = FoldCourse(place.initial_course - sim.mgvar);
    lnav.course_here = place.course_here;
    lnav.wpt_dist = place.dist_to_end;
    lnav.wpt_brg = FoldCourse(place.bearing_to_end - ReferenceVariation());
    if (IsVectorsLegActive()) lnav.wpt_brg = to.from_hdg;
    lnav.xtk = place.cross_track;
    lnav.xtk_side = place.cross_track_side;
    lnav.located_leg = plan.active.stpos;
    lnav.located = {plan.active.active_leg.from_lat, plan.active.active_leg.from_lon, to.lat, to.lon};
}

bool IsActiveLegLocated() {
    const FlightPlanLeg& to = FlightPlanLegAt(plan.active.stpos);
    return lnav.located_leg == plan.active.stpos &&
           lnav.located ==
               std::array{plan.active.active_leg.from_lat, plan.active.active_leg.from_lon, to.lat, to.lon};
}
