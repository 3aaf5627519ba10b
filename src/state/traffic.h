#pragma once

#include <span>

#include "state/variable.h"

/// The host's air traffic. The addresses are bound at pre-initialise, null = not published; the copies are
/// those of this cycle.
struct TrafficState {
    void* tcas_targets_variable = nullptr;  // holds the address of the records
    void* tcas_count_variable = nullptr;    // holds their number
    const void* tcas_targets = nullptr;
    int tcas_target_cnt = 0;
};

extern TrafficState traffic;
extern const std::span<const Variable> kTrafficVariables;
