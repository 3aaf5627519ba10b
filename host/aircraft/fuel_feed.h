#pragma once

#include <array>

namespace host {

struct Aircraft;

enum FuelTank { kLeftTank, kRightTank, kCentreTank };
constexpr std::array<double, 3> kTankGallons = {5570, 5570, 22340};
constexpr double kFuelLbPerGallon = 6.7;

/// Takes what the engines burn in `dt` seconds from the tanks, and what leaks or is balanced. A centre pump
/// that presses feeds before the mains, through an open crossfeed both sides; an engine without a pump sucks
/// from its own main tank. What stays
/// in the centre drains into the mains in the end. An engine for which nothing comes isn't fed.
void StepFuel(Aircraft& aircraft, double dt);

}  // namespace host
