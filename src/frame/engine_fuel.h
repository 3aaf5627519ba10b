#pragma once

#include "frame/key_events.h"
#include "frame/tokens.h"
#include "state/cockpit.h"
#include "state/engines.h"

/// An engine's fuel control, with what the host has beside it.
struct EngineFuel {
    int CockpitState::*control;  // 1 run, 2 cut-off
    int CockpitState::*start_latch;
    int starter_token, starter_toggle;
    int fuel_token, fuel_on, cut_off;
    int EngineState::*start_phase;
};
constexpr int kFuelRun = 1, kFuelCutOff = 2;

/// Left, right.
inline constexpr EngineFuel kEngineFuel[] = {
    {&CockpitState::eng1_thrott, &CockpitState::eng1_start_latch, kTokenEng1Starter, kKeyEng1StarterToggle,
     kTokenEng1Combustion, kKeyEng1FuelOn, kKeyEng1CutOff, &EngineState::eng1_start_phase},
    {&CockpitState::eng2_thrott, &CockpitState::eng2_start_latch, kTokenEng2Starter, kKeyEng2StarterToggle,
     kTokenEng2Combustion, kKeyEng2FuelOn, kKeyEng2CutOff, &EngineState::eng2_start_phase},
};

// Phases of a start.
constexpr int kNoStart = 0, kStarterRuns = 1, kStarterDone = 2;

/// The fuel control goes to cut-off; without fuel a start past its starter is over.
inline void SetFuelCutOff(const EngineFuel& engine) {
    cockpit.*engine.control = kFuelCutOff;
    if (engines.*engine.start_phase == kStarterDone) engines.*engine.start_phase = kNoStart;
}

/// The fuel control goes to run: the engine's light-off is awaited.
inline void SetFuelRun(const EngineFuel& engine) {
    cockpit.*engine.control = kFuelRun;
    cockpit.*engine.start_latch = 1;
}
