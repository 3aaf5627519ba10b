#pragma once

#include <span>

#include "state/variable.h"

constexpr double kNoPitchLimit = 99999;

/// The host's air traffic. The addresses are bound at pre-initialise, null = not published; the copies are
/// those of this cycle.
struct TrafficState {
    void* tcas_targets_variable = nullptr;  // holds the address of the records
    void* tcas_count_variable = nullptr;    // holds their number
    const void* tcas_targets = nullptr;
    int tcas_target_cnt = 0;
    // the advisory in force
    int tcas_ra_level = 0;                          // 0 none, 1 traffic, 2 resolution advisory
    double tcas_ra_vs_min = 0, tcas_ra_vs_max = 0;  // fpm, between which to fly
    double tcas_ra_fpa_tgt = 0;                     // degrees
    double tcas_pitch_min = kNoPitchLimit, tcas_pitch_max = kNoPitchLimit;  // degrees, nose up positive
};

extern TrafficState traffic;
extern const std::span<const Variable> kTrafficVariables;
