#pragma once

#include <span>

#include "state/planned_speeds.h"
#include "state/variable.h"

/// What the flight is to be flown with, as the crew, the cost index or a stored route tells. Written by the
/// performance pages and fmc/; the pairs of speed and altitude that limit it stand in the configuration.
/// Pounds, feet, knots.
struct PerfState {
    PlannedSpeeds speeds;        // in force
    int cost_index = -1;         // negative = none
    double cruise_alt = 0;       // 0 = none
    double init_cruise_alt = 0;  // the altitude planned before the first step
    int fms_step_size = 0;       // 0 entered step-to altitude, -1 ICAO, -2 RVSM
    double fms_step_to_alt = 0;
    double entered_step_to_alt = 0;
    double spd_limit = 0;                       // lower limit of the descent speed
    double ZfwEntry = 0;                        // zero-fuel weight, 0 = none
    double FuelEntry = 0;                       // what a fuel entry adds to the sensed fuel, 0 = none
    double resv_fuel = 0;                       // reserves
    double DragFactor = 0, FuelFlowFactor = 0;  // percent, the airframe against the book
    double planned_fuel = 0;  // that the route brought and that isn't in the tanks yet; 0 = none
};

extern PerfState perf;
extern const std::span<const Variable> kPerfVariables;
