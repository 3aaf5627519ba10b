#include "state/eicas.h"

EicasState eicas;

namespace {
constexpr Variable kEicasRows[] = {
    {"engine_l", &eicas.engine_l},
    {"engine_r", &eicas.engine_r},
    {"fuel_temp", &eicas.fuel_temp},
    {"load_relief", &eicas.load_relief},
    {"ldg_alt_manual", &eicas.ldg_alt_manual},
};
}  // namespace

const std::span<const Variable> kEicasVariables = kEicasRows;
