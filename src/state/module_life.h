#pragma once

#include <span>

#include "state/variable.h"

/// Where the module stands in its life.
struct ModuleLife {
    int gdi_started = 0;  // drawing is up
    int navdata_read = 0;
    int kill_pending = 0;
    int startup_done = 0;     // DelayedStart has run
    int outputs_running = 0;  // the eighth second has come
};

extern ModuleLife module_life;
extern const std::span<const Variable> kModuleLifeVariables;
