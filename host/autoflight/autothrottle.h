#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Takes the throttle requests of the panel and follows the vertical mode; nothing is on without an armed
/// switch. Sets the thrust limit of the phase of flight.
void UpdateThrottleMode(AutoflightLogic& logic, const FlightValues& now);

/// Thrust lever, 0 to 1, that the throttle mode wants. `dt` in seconds.
double ThrustLever(const AutoflightLogic& logic, const FlightValues& now, double dt);

/// The lever of the thrust limit in force, with the derates of the performance pages.
double LimitLever(const FlightValues& now);

/// What the engine displays show of the limit.
void ReportThrustLimit(const FlightValues& now);

}  // namespace host
