#pragma once

#include "host/aircraft/air.h"

namespace host {

constexpr double kFeetPerMinutePerKnot = kFeetPerNm / 60;

/// What the autopilot measures, from tokens and expressions. Degrees, knots, feet; right, up and climb
/// positive.
struct FlightValues {
    double magnetic_heading, true_heading, variation;
    double track;  // degrees magnetic, from heading, airspeed and wind
    double bank, pitch;
    double tas, ias, mach, ground_speed;
    double altitude, vertical_speed, radio_altitude;
    double path;  // degrees
    bool on_ground;
};
FlightValues ReadFlightValues();

/// A request of the panel: the variable's value when it can be one, else 0.
int PanelRequest(const char* variable);

/// A bearing difference, -180 to 180, right positive.
double Difference(double from, double to);

/// Moves a command towards its target by at most so far.
double Slew(double value, double target, double step);

}  // namespace host
