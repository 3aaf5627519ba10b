#include "host/aircraft/brakes.h"

#include <algorithm>

namespace host {
namespace {

constexpr double kDecelerations[] = {4.0, 5.0, 6.0, 7.5, 11.0};  // ft/s^2, from kAutobrake1 on

// Takes or gives pressure until the aircraft slows as it should, whatever else slows it.
double PressureFor(double target, double pressure, double deceleration, double dt) {
    constexpr double kGain = 0.08;  // a second, for each ft/s^2
    return std::clamp(pressure + kGain * (target - deceleration) * dt, 0.0, 1.0);
}

}  // namespace

void StepAutomaticBrakes(AutomaticBrakes& brakes, int setting, double lever, double ground_speed,
                         double deceleration, double dt) {
    constexpr double kPower = 0.15, kIdle = 0.02, kFast = 85;
    if (lever > kPower) brakes.landed = false;
    if (lever > kPower && ground_speed > kFast) brakes.was_fast = true;
    const bool braked_landing = brakes.landed && setting >= kAutobrake1 && setting <= kAutobrakeMax;
    const bool rejected = !brakes.landed && setting == kRejectedTakeoff && brakes.was_fast;
    if (lever > kIdle || (!braked_landing && !rejected))
        brakes.pressure = 0;
    else if (rejected)
        brakes.pressure = 1;
    else
        brakes.pressure =
            PressureFor(kDecelerations[setting - kAutobrake1], brakes.pressure, deceleration, dt);
}

void HeatBrake(WheelBrake& brake, double joule) {
    constexpr double kJoulePerUnit = 9e6;
    brake.disc += joule / kJoulePerUnit;
}

void CoolBrake(WheelBrake& brake, bool gear_out, double speed, double dt) {
    constexpr double kInWell = 3600, kAtRest = 2400, kPerKnot = 0.015;  // s, s; of the still air's cooling
    constexpr double kSensorLag = 60;                                   // s
    const double time = gear_out ? kAtRest / (1 + kPerKnot * speed) : kInWell;
    brake.disc -= brake.disc * dt / time;
    brake.shown += (brake.disc - brake.shown) * dt / kSensorLag;
}

}  // namespace host
