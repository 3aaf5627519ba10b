#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Takes the pitch requests of the panel and captures the selected altitude.
void UpdateVerticalMode(AutoflightLogic& logic, const FlightValues& now);

/// The flight path (degrees, up positive) that the vertical mode wants.
double VerticalPath(const AutoflightLogic& logic, const FlightValues& now, double dt);

/// The altitude of the panel's window, ft.
double SelectedAltitude();

/// The speed of the panel's window as knots IAS at this height, a Mach window included, within what the
/// aircraft can fly.
double SelectedSpeed(const FlightValues& now);

}  // namespace host
