#pragma once

#include <string>

#include "state/plan.h"

// The constraint of a leg as LEGS shows it.

/// "FL350" above the transition altitude, else feet in five columns.
std::string AltitudeText(double altitude);

/// "250", ".820", or dashes without a speed.
std::string SpeedText(const FlightPlanLeg& leg);

/// "12000A", "FL200B", of a window "200A240B" in hundreds of feet; empty for none.
std::string ConstraintAltitude(const FlightPlanLeg& leg);

/// Speed and altitude as the crew would enter them, "250/12000A".
std::string ConstraintText(const FlightPlanLeg& leg);
