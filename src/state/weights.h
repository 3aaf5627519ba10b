#pragma once

#include <array>
#include <span>

#include "state/variable.h"

/// Flap manoeuvre speeds (kt) at one weight.
struct FlapSpeedRow {
    double weight = 0;  // lb
    int up = 0, flaps1 = 0, flaps5 = 0, flaps15 = 0, flaps20 = 0, flaps25 = 0, flaps30 = 0;
};

/// The aircraft's weights and the row of the weight tables in use. The fuel of the fuel file waits here, in
/// gallons, until the host's tanks take it. Written by frame/.
struct WeightState {
    double zfw = 0;                                 // lb, zero-fuel weight, 0 = not known
    double gross_weight = 0;                        // lb
    std::array<FlapSpeedRow, 15> flap_speeds = {};  // rows 1 to 14, heaviest first; filled by LoadAircraft
    int flap_speed_row = 0;
    double flap_speed_ref_weight = 999999;                                 // lb, at which the row was chosen
    std::array<double, 21> payload_stations = {};                          // lb, stations 1 to 20
    double fuel_load_left = 0, fuel_load_right = 0, fuel_load_centre = 0;  // gal, prepared for the host
};

extern WeightState weights;
extern const std::span<const Variable> kWeightVariables;
