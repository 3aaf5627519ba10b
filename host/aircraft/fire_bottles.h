#pragma once

#include <array>

namespace host {

struct Aircraft;

/// The extinguishers: two that either engine can get, one of the APU.
struct FireBottles {
    std::array<bool, 3> spent = {};
    // Seconds until the fire in the left engine, the right one, the APU is out; 0 = nothing has been let in.
    std::array<double, 3> smothering = {};
};

/// Lets the bottles go to which a pulled handle is turned, once each, and puts out what they reach.
void StepFires(Aircraft& aircraft, double dt);

}  // namespace host
