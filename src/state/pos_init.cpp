#include "state/pos_init.h"

PosInitState pos_init;

namespace {
constexpr Variable kRows[] = {
    {"RefAirport", &pos_init.RefAirport},
    {"inertial_lat", &pos_init.inertial_lat},
    {"inertial_lon", &pos_init.inertial_lon},
};
}  // namespace

const std::span<const Variable> kPosInitVariables = kRows;
