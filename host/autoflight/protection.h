#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Keeps the wanted path within what the wing and the airframe can bear: too slow, the nose goes down until
/// the speed holds, and an armed autothrottle wakes; too fast, the nose comes up. Gives the path to fly
/// (degrees) and marks that the protection is in force.
double ProtectEnvelope(AutoflightLogic& logic, const FlightValues& now, double path, double dt);

}  // namespace host
