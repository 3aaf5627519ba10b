#include "host/autoflight/protection.h"

#include <algorithm>

#include "host/autoflight/vertical.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kSlowestOverStall = 1.1, kEaseOff = 6, kTooFast = 4;  // of the stall speed; kt, kt
constexpr double kLowest = 100;                                        // ft radio altitude

// Speed by pitch for the protection alone, free of the direction in which the modes change the level.
double PathThatHolds(const AutoflightLogic& logic, const FlightValues& now, double speed, double dt) {
    constexpr double kSpeedTime = 8, kMostRate = 1.5, kBendTime = 2.5, kGravityKtDegree = 19.0625 * 0.0174533;
    const double wanted = std::clamp((speed - now.ias) / kSpeedTime, -kMostRate, kMostRate);
    return std::clamp(logic.path_command + (logic.ias_rate - wanted) / kGravityKtDegree * dt / kBendTime,
                      -8.0, 8.0);
}

}  // namespace

double ProtectEnvelope(AutoflightLogic& logic, const FlightValues& now, double path, double dt) {
    const double slowest = NamedValue("TZ_V_S") * kSlowestOverStall, fastest = NamedValue("TZ_V_MO");
    const bool flying = !now.on_ground && now.radio_altitude > kLowest && logic.vertical != kFlare;
    const double margin = logic.protects ? kEaseOff : 0;
    const bool slow = flying && now.ias < slowest + margin;
    const bool fast = flying && fastest > 0 && now.ias > fastest + kTooFast - margin;
    logic.protects = slow || fast;
    if (slow &&
        (logic.throttle == kThrottleNone || logic.throttle == kIdle || logic.throttle == kThrottleHold) &&
        (NamedValue("at_armed_left") == 1 || NamedValue("at_armed_right") == 1))
        logic.throttle = kSpeed;
    if (slow) return std::min(path, PathThatHolds(logic, now, slowest + kEaseOff, dt));
    if (fast) return std::max(path, PathThatHolds(logic, now, fastest - kEaseOff, dt));
    return path;
}

}  // namespace host
