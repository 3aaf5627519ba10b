#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// What the crew has entered about where the aircraft stands.
struct PosInitState {
    std::string RefAirport;                     // reference airport, empty = none
    double inertial_lat = 0, inertial_lon = 0;  // degrees, as entered; a latitude of exactly 0 = none
};

extern PosInitState pos_init;
extern const std::span<const Variable> kPosInitVariables;
