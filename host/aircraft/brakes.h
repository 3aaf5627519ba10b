#pragma once

namespace host {

/// What the brakes do by themselves: the autobrake's pressure, and when the armed speedbrakes come out.
struct AutomaticBrakes {
    bool landed = false;    // the wheels have come down and no power has been set since
    bool was_fast = false;  // above the speed from which a broken-off take-off is braked
    double pressure = 0;    // 0 to 1
};

/// Steps of the autobrake selector.
enum AutobrakeSetting {
    kRejectedTakeoff = -1,
    kAutobrakeOff = 0,
    kDisarmed = 1,
    kAutobrake1 = 2,
    kAutobrakeMax = 6
};

/// Moves the pressure on by `dt` seconds on the ground. `lever` as FlightControls has it, `ground_speed` in
/// knots, `deceleration` in ft/s^2, positive while slowing down.
void StepAutomaticBrakes(AutomaticBrakes& brakes, int setting, double lever, double ground_speed,
                         double deceleration, double dt);

/// One wheel's brake. Its sensor sits in the heat sink's rim and lags behind the discs.
struct WheelBrake {
    double disc = 0;   // on the scale of the sensor, hot from 5 on
    double shown = 0;  // what the sensor tells
};

/// Takes in the energy (J) of some braking: a landing brings about 3, a heavy rejected take-off 7.
void HeatBrake(WheelBrake& brake, double joule);
/// Cools for `dt` seconds in air of a speed in knots; in its well with the gear in.
void CoolBrake(WheelBrake& brake, bool gear_out, double speed, double dt);

}  // namespace host
