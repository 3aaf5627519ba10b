#include "host/autoflight/flight_values.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/angles.h"
#include "host/world/world.h"

namespace host {
namespace {}  // namespace

double Difference(double from, double to) {
    const double clockwise = FoldDegrees(to - from);
    return clockwise > 180 ? clockwise - 360 : clockwise;
}

double Slew(double value, double target, double step) {
    return value + std::clamp(target - value, -step, step);
}

int PanelRequest(const char* variable) {
    const double value = NamedValue(variable);
    constexpr double kHighestMode = 99;
    return value >= 0 && value <= kHighestMode ? static_cast<int>(value) : 0;
}

FlightValues ReadFlightValues() {
    FlightValues now;
    now.magnetic_heading = TokenOf(81);
    now.variation = TokenOf(82);
    now.true_heading = TokenOf(86);
    now.bank = -TokenOf(79);
    now.pitch = -TokenOf(77);
    now.tas = CalcOf("(A:AIRSPEED TRUE, knots)");
    now.ias = TokenOf(63);
    now.mach = TokenOf(64) / 20480;
    now.ground_speed = TokenOf(551) / 1.68781;
    now.altitude = CalcOf("(A:INDICATED ALTITUDE, feet)");
    now.vertical_speed = TokenOf(65) / 1.30048;
    now.radio_altitude = TokenOf(614) / 0.3048 - 17.2;
    now.on_ground = TokenOf(60) != 0;
    now.path = now.tas > 1 ? std::atan(now.vertical_speed / (now.tas * kFeetPerMinutePerKnot)) / kRad : 0;
    // The wind triangle: where nose and wind together carry the aircraft.
    const double wind = TokenOf(343), wind_to = TokenOf(344) + 180 - now.true_heading;
    const double ahead = now.tas + wind * std::cos(wind_to * kRad), aside = wind * std::sin(wind_to * kRad);
    const double drift = now.on_ground || ahead <= 0 ? 0 : std::atan2(aside, ahead) / kRad;
    now.track = FoldDegrees(now.magnetic_heading + drift);
    return now;
}

}  // namespace host
