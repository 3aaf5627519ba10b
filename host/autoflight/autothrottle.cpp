#include "host/autoflight/autothrottle.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/engines.h"
#include "host/autoflight/vertical.h"
#include "host/autoflight/vnav.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kRequestSpeed = 1, kRequestThrustReference = 5;
constexpr double kHoldAbove = 80;    // kt, on the take-off roll
constexpr double kHoldUntil = 400;   // ft radio altitude
constexpr double kRetardBelow = 27;  // ft radio altitude, in the flare

bool IsArmed() {
    return NamedValue("at_armed_left") == 1 || NamedValue("at_armed_right") == 1;
}

// A switch that drops while the autothrottle is at work is a disconnect; arming it anew ends the caution.
void WatchArm(AutoflightLogic& logic, bool armed) {
    if (logic.was_armed && !armed && logic.throttle != kThrottleNone) SetNamedValue("at_disc", 1);
    if (armed && !logic.was_armed) SetNamedValue("at_disc", 0);
    logic.was_armed = armed;
}

// What thrust does in a pitch mode. In the one kind pitch holds the speed and thrust is fixed, in the other
// thrust holds it.
struct ThrustOfMode {
    int vertical, up, down;
};
constexpr ThrustOfMode kThrustOfModes[] = {
    {kVerticalToGa, kThrustReference, kThrustReference},
    {kFlightLevelChange, kThrust, kIdle},
    {kVnavSpeed, kThrustReference, kIdle},
    {kFlare, kIdle, kIdle},
};

int SpeedMode(const AutoflightLogic& logic) {
    return IsMachTarget(logic) ? kMach : kSpeed;
}

// Down the path the engines idle while that is enough.
int DescentMode(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kTooSlow = 6, kFastEnough = 1;
    const double over = now.ias - TargetSpeed(logic, now);
    const bool idle =
        logic.throttle == kIdle ? over > -kTooSlow : over > kFastEnough && logic.lever_command <= 0;
    return idle ? kIdle : SpeedMode(logic);
}

int ModeInFlight(const AutoflightLogic& logic, const FlightValues& now) {
    if (IsVnavDescending(logic)) return DescentMode(logic, now);
    if (logic.vertical == kFlare && now.radio_altitude > kRetardBelow) return SpeedMode(logic);
    for (const ThrustOfMode& row : kThrustOfModes)
        if (row.vertical == logic.vertical) return SelectedAltitude() > now.altitude ? row.up : row.down;
    return SpeedMode(logic);
}

int ModeOnGround(const AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral == kRollout || logic.throttle == kIdle) return kThrottleNone;  // the landing is over
    if (logic.throttle == kThrustReference && now.ias > kHoldAbove) return kThrottleHold;
    return logic.throttle;
}

int PhaseLimit(const AutoflightLogic& logic, const FlightValues& now) {
    if (now.on_ground) return kLimitTakeoff;
    if (logic.phase_limit == kLimitTakeoff && now.radio_altitude < NamedValue("tz_thrust_reduction_ht"))
        return kLimitTakeoff;
    const bool approach = logic.vertical == kGlideSlope || logic.vertical == kGlidePath ||
                          logic.vertical == kFlare || (logic.vertical == kVerticalToGa && !logic.took_off);
    if (approach) return kLimitGoAround;
    const bool flaps_out = TokenOf(907) > 0.5;
    if (logic.phase_limit == kLimitGoAround && flaps_out) return kLimitGoAround;
    const bool level = logic.vertical == kAltitude || (logic.vertical == kVnavPath && logic.vnav_level);
    constexpr double kHigh = 20000;
    return level && now.altitude > kHigh ? kLimitCruise : kLimitClimb;
}

void SetPhaseLimit(AutoflightLogic& logic, const FlightValues& now) {
    const int limit = PhaseLimit(logic, now);
    if (limit != logic.phase_limit) SetNamedValue("tz_thrust_limit", limit);
    logic.phase_limit = limit;
}

// Share of the full thrust.
double LimitShare(int limit) {
    const int takeoff_derate = PanelRequest("TZ_FMC_TO_Derate"),
              climb_derate = PanelRequest("TZ_FMC_CLB_Derate");
    switch (limit) {
        case kLimitTakeoff: {
            // An assumed temperature: about half a percent of thrust a degree above 30 degrees.
            const double assumed = std::clamp(NamedValue("TZ_FMC_Flex_Temp") - 30, 0.0, 40.0);
            return (1 - 0.1 * std::min(takeoff_derate, 2)) * (1 - 0.005 * assumed);
        }
        case kLimitContinuous:
            return 0.95;
        case kLimitClimb:
            return 0.92 - 0.06 * std::min(climb_derate, 2);
        case kLimitCruise:
            return 0.92;
        default:
            return 1;
    }
}

}  // namespace

void UpdateThrottleMode(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("at_mode_clicked");
    if (request != 0) SetNamedValue("at_mode_clicked", 0);
    SetPhaseLimit(logic, now);
    const bool armed = IsArmed();
    WatchArm(logic, armed);
    if (!armed) {
        logic.throttle = kThrottleNone;
        return;
    }
    if (request == kRequestThrustReference) logic.throttle = kThrustReference;
    if (request == kRequestSpeed) logic.throttle = kSpeed;
    if (now.on_ground) {
        logic.throttle = ModeOnGround(logic, now);
        return;
    }
    if (logic.throttle == kThrottleHold && now.radio_altitude < kHoldUntil) return;
    // A change of level and a go-around wake an armed autothrottle.
    const bool woken = logic.throttle != kThrottleNone || logic.vertical == kFlightLevelChange ||
                       IsVnav(logic.vertical) || logic.vertical == kVerticalToGa;
    if (woken && logic.vertical != kVerticalNone) logic.throttle = ModeInFlight(logic, now);
}

double LimitLever(const FlightValues&) {
    constexpr double kThrustPower = 1.3;  // of the lever
    return std::pow(LimitShare(PanelRequest("tz_thrust_limit")), 1 / kThrustPower);
}

double ThrustLever(const AutoflightLogic& logic, const FlightValues& now, double dt) {
    constexpr double kSpeedTime = 10, kMostRate = 1.5, kLeverGain = 0.12, kLeverRate = 0.12;
    switch (logic.throttle) {
        case kThrustReference:
        case kThrust:
            return Slew(logic.lever_command, LimitLever(now), kLeverRate * dt);
        case kIdle:
            return std::max(logic.lever_command - kLeverRate * dt, 0.0);
        case kSpeed:
        case kMach: {
            const double wanted =
                std::clamp((TargetSpeed(logic, now) - now.ias) / kSpeedTime, -kMostRate, kMostRate);
            const double step =
                std::clamp(kLeverGain * (wanted - logic.ias_rate), -kLeverRate, kLeverRate) * dt;
            return std::clamp(logic.lever_command + step, 0.0, LimitLever(now));
        }
        default:
            return logic.lever_command;
    }
}

void ReportThrustLimit(const FlightValues& now) {
    constexpr double kMostN1 = 104;
    const bool by_ratio = NamedValue("TZ_ENG_TYPE_RR") == 1;
    const auto shown = [&](double n1) { return by_ratio ? ThrustRatioOfN1(n1) : n1; };
    SetNamedValue("TZ_FADEC_Green_line", shown(kIdleN1 + (kFullN1 - kIdleN1) * LimitLever(now)));
    SetNamedValue("TZ_FADEC_Amber_line", shown(kMostN1));
}

}  // namespace host
