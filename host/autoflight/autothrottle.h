#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Takes the throttle requests of the panel and follows the vertical mode; nothing is on without an armed
/// switch.
void UpdateThrottleMode(AutoflightLogic& logic, const FlightValues& now);

/// Thrust lever, 0 to 1, that the throttle mode wants. `dt` in seconds.
double ThrustLever(const AutoflightLogic& logic, const FlightValues& now, double dt);

}  // namespace host
