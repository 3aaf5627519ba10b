#include "state/pos_init.h"

PosInitState pos_init;

namespace {
constexpr Variable kRows[] = {
    {"RefAirport", &pos_init.RefAirport},
};
}  // namespace

const std::span<const Variable> kPosInitVariables = kRows;
