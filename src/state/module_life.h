#pragma once

#include <array>
#include <span>
#include <string>

#include "state/variable.h"

/// Where the module stands in its life, and the latches of the main update.
struct ModuleLife {
    int gdi_started = 0;  // drawing is up
    int navdata_read = 0;
    int kill_pending = 0;
    int startup_done = 0;     // DelayedStart has run
    int outputs_running = 0;  // the eighth second has come
    int activesky_loaded = 0;
    std::string ActiveSkyFolder;  // of the weather program's snapshots
    // the host's traffic records, bound at pre-initialise; null = not published
    void* tcas_targets_variable = nullptr;  // holds the address of the records
    void* tcas_count_variable = nullptr;    // holds their number
    const void* tcas_targets = nullptr;     // copies of this cycle
    int tcas_target_cnt = 0;
    // once each per descent
    int tod_pause_done = 0, tod_rate_done = 0;
    // once each per arrival
    int dest_pause_done = 0, dest_rate_done = 0;
    int dh_set = 0;  // the decision height has read 200
    // runways of the air traffic: two for takeoff, two for landing; empty = none
    std::array<std::string, 4> ai_runways;
};

extern ModuleLife module_life;
extern const std::span<const Variable> kModuleLifeVariables;
