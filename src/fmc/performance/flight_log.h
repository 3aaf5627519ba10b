#pragma once

/// One step of the flight log, each tick, and with `at_waypoint` at a sequencing: finds the phase of the
/// flight (`fplog_mode`) and, with the setting LogFlightPlan, keeps the log in fpl.log. Only at simulation
/// rate 1 and with a plan.
void FlightLogStep(bool at_waypoint);
