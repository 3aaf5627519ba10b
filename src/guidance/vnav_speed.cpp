#include "guidance/vnav_speed.h"

#include <algorithm>
#include <cmath>

#include "frame/crew_messages.h"
#include "navdata/from_aircraft.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kIasMode = 1, kMachMode = 2;
constexpr double kNoLevelAhead = 999;
constexpr double kNearFix = 25, kNearLevelNm = 15;  // nm
constexpr int kTransitionDone = 1, kRestrictionDone = 2;

bool IsDescending() {
    return vnav.tod == 1 || vnav.init_tod == 1;
}

void AimAtMach(SpeedRule rule, double mach) {
    vnav.vnav_mach = mach;
    vnav.vnav_lset_code = static_cast<int>(rule);
}

void SetMode(int mode) {
    if (vnav.vnav_spd_mode == mode) return;
    vnav.vnav_spd_mode = mode;
    vnav.vnav_spd_pending = 0;
}

void ChooseMode() {
    constexpr double kLowest = 10000, kDescentMode = 11000;  // ft
    if (vnav.tod == 1) {
        if (sim.ind_alt_ft < kLowest ||
            (sim.ind_alt_ft <= kDescentMode && sim.ias_kt >= perf.speeds.descent_ias))
            SetMode(kIasMode);
    } else if (vnav.toc == 1) {
        SetMode(plan.mod.selected.CruiseSelected == 1 || perf.speeds.cruise_mach <= 0 ? kIasMode : kMachMode);
    } else if (vnav.vnav_spd_mode == kIasMode && sim.ind_alt_ft >= kLowest && perf.speeds.climb_mach > 0 &&
               sim.mach >= perf.speeds.climb_mach) {
        SetMode(kMachMode);
    }
}

// The next level on the way down: a limit's altitude, or where the cross-at point is.
double NextLevel() {
    const auto is_next = [](double altitude) {
        return sim.ind_alt_ft > altitude && altitude > 0 && altitude >= vnav.cross_at_elev;
    };
    if (is_next(cfg.DescTransAltRest)) return cfg.DescTransAltRest;
    if (is_next(cfg.DesAltRest)) return cfg.DesAltRest;
    return vnav.cross_at_elev;
}

double DistanceToLevel(double level) {
    const double rate = std::fabs(sim.vs_fpm);
    if (rate < 1) return kNoLevelAhead;
    return std::min((sim.ind_alt_ft - level) / rate * sim.ground_speed_kt / 60, kNoLevelAhead);
}

bool LevelsOffAhead() {
    constexpr double kAbove = 300;
    const double limits = std::min(cfg.DescTransAltRest, cfg.DesAltRest);
    const double lowest = std::min(vnav.cross_at_elev, limits);
    return vnav.vnav_engaged == 1 && vnav.tod == 1 && sim.ind_alt_ft > lowest + kAbove;
}

void MeasureLevelOff() {
    vnav.level_off_dist = kNoLevelAhead;
    if (LevelsOffAhead() && perf.cruise_alt > vnav.cross_at_elev)
        vnav.level_off_dist = DistanceToLevel(NextLevel());
}

void AskForDrag() {
    constexpr double kTooFast = 10, kSlowAgain = 5, kPatience = 60;  // kt, s
    const bool patient = sim.abs_time - vnav.drag_msg_changed_at >= kPatience;
    const bool stays_fast = autoflight.spd_lookahead > vnav.vnav_ias + kTooFast;
    if (IsCduMessagePosted(kDragRequired)) {
        const bool slow = sim.ias_kt < vnav.vnav_ias + kSlowAgain || (patient && !stays_fast);
        if (!slow && LevelsOffAhead()) return;
        RemoveCduMessageByTitle(kDragRequired);
        vnav.drag_msg_changed_at = sim.abs_time;
        return;
    }
    if (cfg.FmcDispDragReqMsg != 1 || !LevelsOffAhead() || !patient) return;
    if (vnav.level_off_dist >= kNearLevelNm || sim.ias_kt <= vnav.vnav_ias + kTooFast || !stays_fast) return;
    PostCduMessage(kDragRequired, kAdvisory, kHelpDragRequired, kBothSides);
    vnav.drag_msg_changed_at = sim.abs_time;
}

// --- targets

double TransitionSpeed() {
    return std::max<double>(perf.spd_limit, cfg.DescTransSpdRest);
}

void LowerSpeeds(double ias) {
    perf.speeds.descent_ias = std::min(perf.speeds.descent_ias, ias);
    perf.speeds.cruise_ias = std::min(perf.speeds.cruise_ias, ias);
}

void AimInDescent() {
    const double level = NextLevel();
    vnav.level_off_dist = level == vnav.cross_at_elev ? vnav.cross_at_nm : DistanceToLevel(level);
    const bool above_transition = sim.ind_alt_ft > cfg.DescTransAltRest;
    const FlightPlanLeg& to = ToLeg();
    if (level == vnav.cross_at_elev && vnav.level_off_dist < kNearLevelNm && HasSpeedRestr(to) &&
        to.ias_restr > 0) {
        if (above_transition) return AimAtSpeed(SpeedRule::kLevelOffAboveTransition, TransitionSpeed());
        LowerSpeeds(to.ias_restr);
        return AimAtSpeed(SpeedRule::kLevelOffBelowTransition, to.ias_restr);
    }
    const double limit = perf.spd_limit > 0 ? perf.spd_limit : cfg.DescTransSpdRest;
    const bool near_transition =
        !above_transition || (level == cfg.DescTransAltRest && vnav.level_off_dist < kNearLevelNm);
    if (near_transition && limit > 0 && limit < perf.speeds.descent_ias)
        return AimAtSpeed(SpeedRule::kDescentBelowTransition, limit);
    if (vnav.vnav_spd_mode == kMachMode) return AimAtMach(SpeedRule::kDescentMach, perf.speeds.descent_mach);
    for (int i = plan.active.stpos; i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!HasSpeedRestr(leg) || IsOfMissedApproach(leg)) continue;
        if (leg.ias_restr > 0 && FromAircraft(leg.lat, leg.lon).dist < kNearLevelNm)
            LowerSpeeds(leg.ias_restr);
        break;
    }
    AimAtSpeed(SpeedRule::kDescentIas, perf.speeds.descent_ias);
}

constexpr double kClimbMargin = 25;  // ft below a limit's altitude at which it ends

bool IsBelowClimbRestriction() {
    return cfg.ClbSpdRest > 0 && sim.ind_alt_ft < cfg.ClbAltRest - kClimbMargin;
}
bool IsBelowClimbTransition() {
    return cfg.ClbTransSpdRest > 0 && sim.ind_alt_ft < cfg.ClbTransAltRest - kClimbMargin;
}

// The limit speed in the climb; 0 above both altitudes.
double ClimbLimit() {
    if (IsBelowClimbRestriction()) return cfg.ClbSpdRest;
    return IsBelowClimbTransition() ? std::max<double>(perf.spd_limit, cfg.ClbTransSpdRest) : 0;
}

bool IsTopBefore(const FlightPlanLeg& fix) {
    return FromAircraft(vnav.toc_lat, vnav.toc_lon).dist < FromAircraft(fix.lat, fix.lon).dist;
}

void AimAtClimbLimit(SpeedRule rule, double limit) {
    vnav.clb_limit_active = 1;
    AimAtSpeed(rule, std::min(limit, perf.speeds.climb_ias > 0 ? perf.speeds.climb_ias : limit));
}

void ChooseClimbTarget() {
    const double limit = ClimbLimit();
    const FlightPlanLeg& to = ToLeg();
    if (HasSpeedRestr(to) && to.ias_restr > 0) {
        if (limit > 0 && limit < to.ias_restr) return AimAtClimbLimit(SpeedRule::kClimbLimitBeforeLeg, limit);
        return AimAtSpeed(SpeedRule::kClimbToLeg, IsTopBefore(to) ? perf.speeds.climb_ias : to.ias_restr);
    }
    const FlightPlanLeg& bottom = FlightPlanLegAt(plan.active.bod_pos);
    constexpr double kSpeedGiven = 50;
    if (plan.active.bod_pos <= vnav.toc_stpos && HasSpeedRestr(bottom) && bottom.ias_restr > kSpeedGiven) {
        if (limit > 0 && limit < bottom.ias_restr)
            return AimAtClimbLimit(SpeedRule::kClimbLimitBeforeBottom, limit);
        return AimAtSpeed(SpeedRule::kClimbToBottom, bottom.ias_restr);
    }
    if (IsBelowClimbRestriction()) return AimAtClimbLimit(SpeedRule::kClimbRestriction, limit);
    if (IsBelowClimbTransition()) return AimAtClimbLimit(SpeedRule::kClimbTransition, limit);
    if (vnav.vnav_spd_mode == kMachMode) return AimAtMach(SpeedRule::kClimbMach, perf.speeds.climb_mach);
    AimAtSpeed(SpeedRule::kClimbIas, perf.speeds.climb_ias);
}

void AimInClimb() {
    ChooseClimbTarget();
    constexpr double kFarBelow = 400;  // ft
    if (sim.ind_alt_ft < vnav.cross_at_elev - kFarBelow)
        vnav.vnav_mach = vnav.vnav_spd_mode == kMachMode ? perf.speeds.climb_mach : 0;
}

bool IsSinkingInCruise() {
    constexpr double kDescending = -100;  // fpm
    return sim.vs_fpm < kDescending;
}

// The cruise may be left early, and taken up again, anywhere on a leg.
void WatchEarlyDescent() {
    const bool is_aimed_for = vnav.vnav_lset_code == static_cast<int>(SpeedRule::kEarlyDescent);
    if (vnav.toc == 1 && !IsDescending() && IsSinkingInCruise() != is_aimed_for) vnav.vnav_spd_pending = 0;
}

void AimInCruise() {
    const FlightPlanLeg& bottom = FlightPlanLegAt(plan.active.bod_pos);
    if (HasSpeedRestr(bottom) && bottom.ias_restr > 0 && FromAircraft(bottom.lat, bottom.lon).dist < kNearFix)
        return AimAtSpeed(SpeedRule::kCruiseToBottom, bottom.ias_restr);
    if (IsSinkingInCruise()) return AimAtSpeed(SpeedRule::kEarlyDescent, perf.speeds.descent_ias);
    if (vnav.vnav_spd_mode == kMachMode) return AimAtMach(SpeedRule::kCruiseMach, perf.speeds.cruise_mach);
    AimAtSpeed(SpeedRule::kCruiseIas, perf.speeds.cruise_ias);
}

// In descent a speed constraint is taken up 25 nm before its fix, once.
void TakeUpLegSpeed() {
    const FlightPlanLeg& to = ToLeg();
    if (vnav.tod != 1 || !HasSpeedRestr(to) || vnav.leg_speed_taken == plan.active.stpos) return;
    if (FromAircraft(to.lat, to.lon).dist >= kNearFix) return;
    vnav.leg_speed_taken = plan.active.stpos;
    vnav.vnav_spd_pending = 0;
}

void LimitInDescent(double altitude, double speed, int done, SpeedRule rule) {
    constexpr double kAbove = 100, kClose = 500;  // ft
    const double above = sim.ind_alt_ft - altitude;
    if (altitude <= 0 || speed <= 0 || above <= kAbove || (vnav.spd_limit_done & done) != 0) return;
    if (above >= kClose && DistanceToLevel(altitude) >= kNearLevelNm) return;
    if (sim.ap_spdbug <= speed) return;
    vnav.spd_limit_done |= done;
    AimAtSpeed(rule, speed);
    vnav.vnav_spd_pending = 1;
}

void EndClimbLimit() {
    if (vnav.toc == 1 || vnav.clb_limit_active == 0 || ClimbLimit() > 0) return;
    vnav.clb_limit_active = 0;
    const FlightPlanLeg& to = ToLeg();
    if (HasSpeedRestr(to) && to.ias_restr > 0)
        AimAtSpeed(SpeedRule::kClimbLimitEndsAtLeg, IsTopBefore(to) ? perf.speeds.climb_ias : to.ias_restr);
    else
        AimAtSpeed(SpeedRule::kClimbLimitEnds, perf.speeds.climb_ias);
}

}  // namespace

void AimAtSpeed(SpeedRule rule, double ias) {
    vnav.vnav_ias = ias;
    vnav.vnav_lset_code = static_cast<int>(rule);
}

bool IsTargetMach() {
    if (vnav.vnav_spd_mode != kMachMode) return false;
    switch (static_cast<SpeedRule>(vnav.vnav_lset_code)) {
        case SpeedRule::kDescentMach:
        case SpeedRule::kClimbMach:
        case SpeedRule::kCruiseMach:
            return true;
        default:
            return vnav.vnav_lset_code == 0;
    }
}

void LimitSpeedOnTheWay() {
    if (vnav.vnav_engaged != 1 || !IsRouteActive()) return;
    EndClimbLimit();
    if (vnav.tod != 1) return;
    LimitInDescent(cfg.DescTransAltRest, TransitionSpeed(), kTransitionDone, SpeedRule::kDescentTransition);
    LimitInDescent(cfg.DesAltRest, cfg.DesSpdRest, kRestrictionDone, SpeedRule::kDescentRestriction);
    TakeUpLegSpeed();
}

void VnavSpeedStep() {
    if (plan.active.stpos == kNoPlan) return;
    ChooseMode();
    WatchEarlyDescent();
    MeasureLevelOff();
    AskForDrag();
    if (vnav.vnav_engaged != 1 || !IsRouteActive()) return;
    const FlightPlanLeg& to = ToLeg();
    if (vnav.vnav_spd_pending == 1 && FromAircraft(to.lat, to.lon).dist >= kNearFix) return;
    const bool unpredicted = to.alt == kNone || to.ias_restr == kNone;
    if (unpredicted && vnav.vnav_ias > 0) return;
    if (IsDescending())
        AimInDescent();
    else if (vnav.toc == 0)
        AimInClimb();
    else
        AimInCruise();
    vnav.vnav_spd_pending = 1;
}
