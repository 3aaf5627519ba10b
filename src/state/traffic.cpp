#include "state/traffic.h"

TrafficState traffic;

namespace {
constexpr Variable kTrafficRows[] = {
    {"tcas_target_cnt", &traffic.tcas_target_cnt},
};
}  // namespace

const std::span<const Variable> kTrafficVariables = kTrafficRows;
