#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// What the crew has entered about where the aircraft stands.
struct PosInitState {
    std::string RefAirport;  // reference airport, empty = none
    // degrees, given to the inertial reference units; a latitude of exactly 0 = none
    double InertialEntryLat = 0, InertialEntryLon = 0;
    double RnpEntry = 1;  // nm, the navigation performance that is required
};

extern PosInitState pos_init;
extern const std::span<const Variable> kPosInitVariables;
