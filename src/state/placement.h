#pragma once

#include <span>

#include "state/variable.h"

/// Where a reposition puts the aircraft; taken by the client event My.CTRLSHIFTA. Filled by the pages that
/// offer it.
struct PlacementState {
    double place_lat = 0, place_lon = 0;                                      // degrees
    double place_alt = 0;                                                     // ft
    double place_hdg = 0;                                                     // degrees
    double place_ias = 0;                                                     // kt
    double place_left_fuel = 0, place_right_fuel = 0, place_centre_fuel = 0;  // gal; 0 = as it is
};

extern PlacementState placement;
extern const std::span<const Variable> kPlacementVariables;
