#include "state/placement.h"

PlacementState placement;

namespace {
constexpr Variable kPlacementRows[] = {
    {"place_lat", &placement.place_lat},
    {"place_lon", &placement.place_lon},
    {"place_alt", &placement.place_alt},
    {"place_hdg", &placement.place_hdg},
    {"place_ias", &placement.place_ias},
    {"place_left_fuel", &placement.place_left_fuel},
    {"place_right_fuel", &placement.place_right_fuel},
    {"place_centre_fuel", &placement.place_centre_fuel},
};
}  // namespace

const std::span<const Variable> kPlacementVariables = kPlacementRows;
