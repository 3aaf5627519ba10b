#pragma once

#include <string_view>
#include <vector>

// What sets one variant, and one make of engine, apart.

namespace host {

/// A make of engine. Thrust in newtons of one engine at sea level, at rest.
struct EngineMake {
    std::string_view model;
    double static_thrust_n;
    double fuel_factor;  // of the flow that the tables tell
    bool shows_ratio;    // its first dial is a thrust ratio, not N1
};

struct Airframe {
    std::string_view name;
    double empty_lb;
    EngineMake engine;
};

/// By the variant's name within `sim`, the smallest when none is named, and the engines' make: "rr" or "ge".
Airframe AirframeOf(std::string_view sim, std::string_view engines = "ge");

/// Angle (degrees) of the trailing edge that a flap handle's raw position, 0 to 16384, asks for, and the way
/// back. Detents differ by variant; between two of them the angle follows the handle.
double FlapAngleOfHandle(const Airframe& airframe, double handle);
double HandleOfFlapAngle(const Airframe& airframe, double degrees);

/// The angles (degrees) of the handle's detents, up to down.
std::vector<double> FlapStops(const Airframe& airframe);

/// Number of the detent that a flap angle has reached, 0 up.
int FlapDetent(const Airframe& airframe, double degrees);

/// What an angle of the flaps does to the wing, slats included.
struct FlapEffect {
    double max_lift;   // added to the clean wing's coefficient
    double drag;       // added coefficient
    double incidence;  // degrees less for the same lift
};
FlapEffect EffectOfFlaps(double degrees);

/// Angle of the slats: at their middle place with the first degree of the flaps, fully out before the landing
/// positions.
double SlatAngle(double flap_degrees);

constexpr double kFullFlaps = 30;  // degrees

}  // namespace host
