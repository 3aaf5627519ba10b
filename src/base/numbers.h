#pragma once

#include <cmath>

/// A value that should be a whole number, cut to one; 0 for what fits no 32 bits or is no number.
inline int WholeNumber(double value) {
    return std::fabs(value) < 2147483647.0 ? static_cast<int>(value) : 0;
}
