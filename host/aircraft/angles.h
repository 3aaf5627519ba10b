#pragma once

#include <cmath>
#include <numbers>

namespace host {

constexpr double kRad = std::numbers::pi / 180;  // of a degree

/// Degrees as 0 to below 360.
inline double FoldDegrees(double degrees) {
    const double folded = std::fmod(degrees, 360);
    return folded < 0 ? folded + 360 : folded;
}

}  // namespace host
