#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

// VNAV SPD and VNAV PTH: what the route's profile asks for, within the panel's altitude window.

namespace host {

/// Takes VNAV's request: engages it in the air, arms it below the height at which it takes over after a
/// take-off.
void RequestVnav(AutoflightLogic& logic, const FlightValues& now);

/// Engages an armed VNAV, captures and leaves levels, changes between SPD and PTH, and follows a pilot who
/// turns the speed window.
void UpdateVnav(AutoflightLogic& logic, const FlightValues& now);

bool IsVnav(int vertical);

/// VNAV follows the path down, not a level.
bool IsVnavDescending(const AutoflightLogic& logic);

/// Speed of the profile, kt IAS at this height; 0 = it has none.
double VnavSpeedTarget(const AutoflightLogic& logic, const FlightValues& now);

/// Turns the speed window, which is blank then, along with the profile's speed: the speed tape's bug stands
/// on it, and a pilot who takes the speed over begins there.
void ShowSpeedTarget(AutoflightLogic& logic, const FlightValues& now);

/// Flight path (degrees) of VNAV PTH.
double VnavPathAngle(AutoflightLogic& logic, const FlightValues& now, double dt);

}  // namespace host
