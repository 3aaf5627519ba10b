#include "host/autoflight/vertical.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/angles.h"
#include "host/autoflight/approach.h"
#include "host/autoflight/lateral.h"
#include "host/autoflight/vnav.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kGravityKt = 19.0625;  // kt/s
// An altitude is closed in on exponentially: with this time the pull stays below a tenth of the gravity.
constexpr double kCaptureTime = 8;

bool IsChangingLevel(int mode) {
    return mode == kVerticalSpeed || mode == kFlightPathAngle || mode == kFlightLevelChange ||
           mode == kVerticalToGa;
}

void HoldAltitude(AutoflightLogic& logic, double altitude) {
    logic.vertical = kAltitude;
    if (logic.vertical_armed == kAltitude) logic.vertical_armed = kVerticalNone;
    logic.held_altitude = altitude;
}

void ArmApproach(AutoflightLogic& logic) {
    const bool by_route = NamedValue("tz_fmc_ian_appr") == 1;  // flown by the route, not by a localizer
    const int lateral = by_route ? kFinalApproachCourse : kLocalizer;
    logic.vertical_armed = by_route ? kGlidePath : kGlideSlope;
    if (logic.lateral != lateral) logic.lateral_armed = lateral;
}

void GoAround(AutoflightLogic& logic, const FlightValues& now) {
    logic.vertical = kVerticalToGa;
    logic.throttle = kThrustReference;  // as far as it is armed
    logic.vertical_armed = now.on_ground ? logic.vertical_armed : kVerticalNone;
    if (logic.lateral_armed != kLnav || !now.on_ground) GoAroundLaterally(logic, now);
}

// What a request of the panel brings about.
struct Request {
    int mode;
    void (*take)(AutoflightLogic& logic, const FlightValues& now);
};
constexpr Request kRequests[] = {
    // Levels off where the present climb ends, not where it stands.
    {kAltitude,
     [](AutoflightLogic& logic, const FlightValues& now) {
         HoldAltitude(logic, now.altitude + now.vertical_speed / 60 * kCaptureTime / 2);
     }},
    {kVerticalSpeed, [](AutoflightLogic& logic, const FlightValues&) { logic.vertical = kVerticalSpeed; }},
    {kFlightPathAngle,
     [](AutoflightLogic& logic, const FlightValues& now) {
         logic.vertical = kFlightPathAngle;
         logic.held_path = now.path;
     }},
    {kFlightLevelChange,
     [](AutoflightLogic& logic, const FlightValues&) { logic.vertical = kFlightLevelChange; }},
    {kVnavSpeed, RequestVnav},
    {kGlideSlope, [](AutoflightLogic& logic, const FlightValues&) { ArmApproach(logic); }},
    {kVerticalToGa, GoAround},
};

void TakeVerticalRequest(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("ap_vert_mode_clicked");
    if (request == 0) return;
    SetNamedValue("ap_vert_mode_clicked", 0);
    for (const Request& row : kRequests)
        if (row.mode == request) row.take(logic, now);
    if (logic.vertical == logic.vertical_armed) logic.vertical_armed = kVerticalNone;
}

void CaptureSelectedAltitude(AutoflightLogic& logic, const FlightValues& now) {
    if (!IsChangingLevel(logic.vertical) || now.on_ground) return;
    const double to_go = SelectedAltitude() - now.altitude;
    const bool closing = to_go * now.vertical_speed >= 0;
    if (std::fabs(to_go) <= 30 || (closing && std::fabs(to_go) <= CaptureLead(now)))
        HoldAltitude(logic, SelectedAltitude());
}

double ToGaPath(const AutoflightLogic& logic, const FlightValues& now, double dt) {
    // The window stands at V2; the climb is flown a little above it.
    constexpr double kRotation = 10, kRotationOverStall = 1.12, kAboveV2 = 15;
    if (!now.on_ground) return PathForSpeed(logic, now, TargetSpeed(logic, now) + kAboveV2, dt);
    return now.ias > NamedValue("TZ_V_S") * kRotationOverStall ? kRotation : 0;
}

double WindowSpeed(const AutoflightLogic& logic, const FlightValues& now) {
    return logic.mach_window ? IasOfMach(TokenOf(118), now) : TokenOf(116);
}

}  // namespace

double SelectedAltitude() {
    return CalcOf("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)");
}

void ReportAltitudeAlert(AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kReached = 200, kGone = 900;  // ft
    constexpr double kNone = -1;
    const double selected = SelectedAltitude(), off = std::fabs(selected - now.altitude);
    const bool landing =
        logic.vertical == kGlideSlope || logic.vertical == kGlidePath || logic.vertical == kFlare;
    if (now.on_ground || landing || selected != logic.alerted_altitude) logic.alerted_altitude = kNone;
    if (!now.on_ground && !landing && off < kReached) logic.alerted_altitude = selected;
    const bool alert = logic.alerted_altitude != kNone && off >= kReached && off <= kGone;
    SetModelValue("tz_altitude_alert", alert ? 1 : 0);
}

double IasOfMach(double mach, const FlightValues& now) {
    return now.mach > 0.1 ? now.ias * mach / now.mach : now.ias;
}

void FollowSpeedWindow(AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kSlowestMach = 0.3;
    const bool mach_window = NamedValue("tz_mach_status") == 1 && now.mach > kSlowestMach;
    double knots = TokenOf(116);
    if (mach_window && (!logic.mach_window || knots != logic.window_knots)) {
        SetToken(118, knots * now.mach / now.ias);
    } else if (!mach_window && logic.mach_window) {
        knots = std::round(IasOfMach(TokenOf(118), now));
        SetToken(116, knots);
        logic.window_speed = knots;
    }
    logic.mach_window = mach_window;
    logic.window_knots = knots;
}

bool IsMachTarget(const AutoflightLogic& logic) {
    if (IsVnav(logic.vertical) && !logic.speed_intervention) {
        const double target = NamedValue("vnav_spd");
        return target > 0 && target < 2;
    }
    return logic.mach_window;
}

double TargetSpeed(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kMostMach = 0.89, kBelowLimit = 8, kSlowestOverStall = 1.2;
    const bool by_route = IsVnav(logic.vertical) && !logic.speed_intervention;
    const double profile = by_route ? VnavSpeedTarget(logic, now) : 0;
    const double target =
        profile > 0 ? profile : WindowSpeed(logic, now) + (logic.took_off && by_route ? 15 : 0);
    const double fastest =
        now.mach > 0.3 ? std::min(NamedValue("TZ_V_MO") - kBelowLimit, IasOfMach(kMostMach, now)) : 360;
    return std::max(std::min(target, fastest), NamedValue("TZ_V_S") * kSlowestOverStall);
}

double PathOfVerticalSpeed(double vertical_speed, const FlightValues& now) {
    const double along = std::max(now.tas, 60.0) * kFeetPerMinutePerKnot;
    return std::asin(std::clamp(vertical_speed / along, -0.5, 0.5)) / kRad;
}

double CaptureLead(const FlightValues& now) {
    return std::fabs(now.vertical_speed) / 60 * kCaptureTime;
}

double PathToLevel(double altitude, const FlightValues& now) {
    constexpr double kMostClimb = 1500;
    const double climb = (altitude - now.altitude) * 60 / kCaptureTime;
    const double most = std::max(kMostClimb, std::fabs(now.vertical_speed));
    return PathOfVerticalSpeed(std::clamp(climb, -most, most), now);
}

double PathForSpeed(const AutoflightLogic& logic, const FlightValues& now, double speed, double dt) {
    constexpr double kSpeedTime = 12, kMostRate = 1.0, kBendTime = 4;
    const double wanted_rate = std::clamp((speed - now.ias) / kSpeedTime, -kMostRate, kMostRate);
    const double excess = (logic.ias_rate - wanted_rate) / kGravityKt / kRad;  // degrees of path
    const double path = logic.path_command + excess * dt / kBendTime;
    const bool climb = SelectedAltitude() > now.altitude || logic.vertical == kVnavSpeed;
    return climb ? std::clamp(path, 0.3, 15.0) : std::clamp(path, -6.0, -0.3);
}

void UpdateVerticalMode(AutoflightLogic& logic, const FlightValues& now) {
    TakeVerticalRequest(logic, now);
    UpdateVnav(logic, now);
    CaptureSelectedAltitude(logic, now);
    if (IsChangingLevel(logic.vertical) && logic.vertical_armed == kVerticalNone)
        logic.vertical_armed = kAltitude;
    if (IsVnav(logic.vertical) && logic.vertical_armed == kAltitude) logic.vertical_armed = kVerticalNone;
}

double VerticalPath(AutoflightLogic& logic, const FlightValues& now, double dt) {
    switch (logic.vertical) {
        case kAltitude:
            return PathToLevel(logic.held_altitude, now);
        case kVerticalSpeed:
            return PathOfVerticalSpeed(TokenOf(120), now);
        case kFlightPathAngle:
            return logic.held_path;
        case kFlightLevelChange:
        case kVnavSpeed:
            return PathForSpeed(logic, now, TargetSpeed(logic, now), dt);
        case kVnavPath:
            return VnavPathAngle(logic, now, dt);
        case kVerticalToGa:
            return ToGaPath(logic, now, dt);
        case kGlideSlope:
        case kGlidePath:
            return SlopePath(logic, now, dt);
        case kFlare:
            return FlarePath(now);
        default:
            return logic.path_command;
    }
}

}  // namespace host
