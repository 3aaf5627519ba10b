#include "host/autoflight/autothrottle.h"

#include <algorithm>

#include "host/autoflight/vertical.h"
#include "host/world/world.h"

namespace host {
namespace {

// The thrust reference, displayed as 100 percent of the limit.
constexpr double kReferenceLever = 0.96;
constexpr int kRequestSpeed = 1, kRequestThrustReference = 5;

bool IsArmed() {
    return NamedValue("at_armed_left") == 1 || NamedValue("at_armed_right") == 1;
}

}  // namespace

void UpdateThrottleMode(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("at_mode_clicked");
    if (request != 0) SetNamedValue("at_mode_clicked", 0);
    if (!IsArmed()) {
        logic.throttle = kThrottleNone;
        return;
    }
    if (request == kRequestThrustReference) logic.throttle = kThrustReference;
    if (request == kRequestSpeed) logic.throttle = kSpeed;
    // A level change wakes an armed autothrottle.
    const bool woken = logic.throttle != kThrottleNone || logic.vertical == kFlightLevelChange;
    if (!woken || now.on_ground) return;
    // In the air the pitch mode decides: pitch holds the speed, then thrust is fixed; else thrust holds it.
    if (logic.vertical == kVerticalToGa)
        logic.throttle = kThrustReference;
    else if (logic.vertical == kFlightLevelChange)
        logic.throttle = SelectedAltitude() > now.altitude ? kThrust : kIdle;
    else if (logic.vertical != kVerticalNone)
        logic.throttle = kSpeed;
}

double ThrustLever(const AutoflightLogic& logic, const FlightValues& now, double dt) {
    constexpr double kSpeedTime = 10, kMostRate = 1.5, kLeverGain = 0.12, kLeverRate = 0.12;
    switch (logic.throttle) {
        case kThrustReference:
        case kThrust:
            return std::min(logic.lever_command + kLeverRate * dt, kReferenceLever);
        case kIdle:
            return std::max(logic.lever_command - kLeverRate * dt, 0.0);
        case kSpeed: {
            const double wanted =
                std::clamp((SelectedSpeed(now) - now.ias) / kSpeedTime, -kMostRate, kMostRate);
            const double step =
                std::clamp(kLeverGain * (wanted - logic.ias_rate), -kLeverRate, kLeverRate) * dt;
            return std::clamp(logic.lever_command + step, 0.0, kReferenceLever);
        }
        default:
            return logic.lever_command;
    }
}

}  // namespace host
