#include "state/pos_init.h"

PosInitState pos_init;

namespace {
constexpr Variable kPosInitRows[] = {
    {"RefAirport", &pos_init.RefAirport},
    {"InertialEntryLat", &pos_init.InertialEntryLat},
    {"InertialEntryLon", &pos_init.InertialEntryLon},
    {"RnpEntry", &pos_init.RnpEntry},
    {"rnp", &pos_init.RnpEntry},
};
}  // namespace

const std::span<const Variable> kPosInitVariables = kPosInitRows;
