#include "host/autoflight/vertical.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/angles.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kFeetPerMinutePerKnot = 6076.115 / 60;
constexpr double kGravityKt = 19.0625;  // kt/s
// An altitude is closed in on exponentially: with this time the pull stays below a tenth of the gravity.
constexpr double kCaptureTime = 8;

double PathOfVerticalSpeed(double vertical_speed, const FlightValues& now) {
    const double along = std::max(now.tas, 60.0) * kFeetPerMinutePerKnot;
    return std::asin(std::clamp(vertical_speed / along, -0.5, 0.5)) / kRad;
}

bool IsChangingLevel(int mode) {
    return mode == kVerticalSpeed || mode == kFlightPathAngle || mode == kFlightLevelChange ||
           mode == kVerticalToGa;
}

void HoldAltitude(AutoflightLogic& logic, double altitude) {
    logic.vertical = kAltitude;
    if (logic.vertical_armed == kAltitude) logic.vertical_armed = kVerticalNone;
    logic.held_altitude = altitude;
}

void TakeRequest(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("ap_vert_mode_clicked");
    if (request == 0) return;
    SetNamedValue("ap_vert_mode_clicked", 0);
    switch (request) {
        case kAltitude:
            // Levels off where the present climb ends, not where it stands.
            HoldAltitude(logic, now.altitude + now.vertical_speed / 60 * kCaptureTime / 2);
            break;
        case kVerticalSpeed:
            logic.vertical = kVerticalSpeed;
            break;
        case kFlightLevelChange:
            logic.vertical = kFlightLevelChange;
            break;
        case kGlideSlope:
            if (NamedValue("tz_fmc_ian_appr") == 1) {  // an approach flown by the route's own needles
                logic.vertical_armed = kGlidePath;
                if (logic.lateral != kFinalApproachCourse) logic.lateral_armed = kFinalApproachCourse;
            } else {
                logic.vertical_armed = kGlideSlope;
                if (logic.lateral != kLocalizer) logic.lateral_armed = kLocalizer;
            }
            break;
        default:
            break;
    }
}

void CaptureSelectedAltitude(AutoflightLogic& logic, const FlightValues& now) {
    if (!IsChangingLevel(logic.vertical) || now.on_ground) return;
    const double to_go = SelectedAltitude() - now.altitude;
    const bool closing = to_go * now.vertical_speed >= 0;
    const double lead = std::fabs(now.vertical_speed) / 60 * kCaptureTime;
    if (std::fabs(to_go) <= 30 || (closing && std::fabs(to_go) <= lead))
        HoldAltitude(logic, SelectedAltitude());
}

// Speed by pitch: the path is bent until the speed changes as the error wants it to.
double PathForSpeed(const AutoflightLogic& logic, const FlightValues& now, double speed, double dt) {
    constexpr double kSpeedTime = 12, kMostRate = 1.0, kBendTime = 4;
    const double wanted_rate = std::clamp((speed - now.ias) / kSpeedTime, -kMostRate, kMostRate);
    const double excess = (logic.ias_rate - wanted_rate) / kGravityKt / kRad;  // degrees of path
    const double path = logic.path_command + excess * dt / kBendTime;
    const bool climb = SelectedAltitude() > now.altitude;
    return climb ? std::clamp(path, 0.3, 15.0) : std::clamp(path, -6.0, -0.3);
}

}  // namespace

double SelectedAltitude() {
    return CalcOf("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)");
}

double SelectedSpeed(const FlightValues& now) {
    const bool mach_window = NamedValue("tz_mach_status") == 1 && now.mach > 0.3;
    const double window = mach_window ? now.ias * TokenOf(118) / now.mach : TokenOf(116);
    constexpr double kMostMach = 0.89;
    const double fastest =
        now.mach > 0.3 ? std::min(NamedValue("TZ_V_MO"), now.ias * kMostMach / now.mach) : 360;
    constexpr double kSlowestOverStall = 1.2;
    return std::max(std::min(window, fastest), NamedValue("TZ_V_S") * kSlowestOverStall);
}

void UpdateVerticalMode(AutoflightLogic& logic, const FlightValues& now) {
    TakeRequest(logic, now);
    if (now.on_ground && logic.throttle == kThrustReference && logic.vertical == kVerticalNone)
        logic.vertical = kVerticalToGa;
    CaptureSelectedAltitude(logic, now);
    if (IsChangingLevel(logic.vertical) && logic.vertical_armed == kVerticalNone)
        logic.vertical_armed = kAltitude;
}

double VerticalPath(const AutoflightLogic& logic, const FlightValues& now, double dt) {
    switch (logic.vertical) {
        case kAltitude: {
            constexpr double kMostClimb = 1500;
            const double climb = (logic.held_altitude - now.altitude) * 60 / kCaptureTime;
            const double most = std::max(kMostClimb, std::fabs(now.vertical_speed));
            return PathOfVerticalSpeed(std::clamp(climb, -most, most), now);
        }
        case kVerticalSpeed:
            return PathOfVerticalSpeed(TokenOf(120), now);
        case kFlightLevelChange:
            return PathForSpeed(logic, now, SelectedSpeed(now), dt);
        case kVerticalToGa: {
            // The window stands at V2; the climb is flown a little above it.
            constexpr double kRotation = 10, kRotationOverStall = 1.12, kAboveV2 = 15;
            if (!now.on_ground) return PathForSpeed(logic, now, SelectedSpeed(now) + kAboveV2, dt);
            return now.ias > NamedValue("TZ_V_S") * kRotationOverStall ? kRotation : 0;
        }
        default:
            return logic.path_command;
    }
}

}  // namespace host
