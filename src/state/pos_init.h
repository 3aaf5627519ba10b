#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// What the crew has entered about where the aircraft stands.
struct PosInitState {
    std::string RefAirport;  // reference airport, empty = none
};

extern PosInitState pos_init;
extern const std::span<const Variable> kPosInitVariables;
