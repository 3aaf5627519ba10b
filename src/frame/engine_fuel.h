#pragma once

#include "frame/key_events.h"
#include "frame/tokens.h"
#include "state/cockpit.h"

/// An engine's fuel control, with what the host has beside it.
struct EngineFuel {
    int CockpitState::*control;  // 1 run, 2 cut-off
    int CockpitState::*start_latch;
    int starter_token, starter_toggle;
    int fuel_token, fuel_on, cut_off;
};
constexpr int kFuelRun = 1, kFuelCutOff = 2;

/// Left, right.
inline constexpr EngineFuel kEngineFuel[] = {
    {&CockpitState::eng1_thrott, &CockpitState::eng1_start_latch, kTokenEng1Starter, kKeyEng1StarterToggle,
     kTokenEng1Combustion, kKeyEng1FuelOn, kKeyEng1CutOff},
    {&CockpitState::eng2_thrott, &CockpitState::eng2_start_latch, kTokenEng2Starter, kKeyEng2StarterToggle,
     kTokenEng2Combustion, kKeyEng2FuelOn, kKeyEng2CutOff},
};
