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

}  // namespace host
