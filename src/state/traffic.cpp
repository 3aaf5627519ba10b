#include "state/traffic.h"

TrafficState traffic;

namespace {
constexpr Variable kTrafficRows[] = {
    {"tcas_target_cnt", &traffic.tcas_target_cnt}, {"tcas_ra_level", &traffic.tcas_ra_level},
    {"tcas_ra_vs_min", &traffic.tcas_ra_vs_min},   {"tcas_ra_vs_max", &traffic.tcas_ra_vs_max},
    {"tcas_ra_fpa_tgt", &traffic.tcas_ra_fpa_tgt}, {"tcas_pitch_min", &traffic.tcas_pitch_min},
    {"tcas_pitch_max", &traffic.tcas_pitch_max},
};
}  // namespace

const std::span<const Variable> kTrafficVariables = kTrafficRows;
