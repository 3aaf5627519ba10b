#pragma once

#include <span>

#include "state/variable.h"

/// What the system adds to the host's engines: their start, and the thrust values that go between the FMC and
/// the aircraft's model. The fuel controls and the latches of the start stand in state/cockpit.h.
struct EngineState {
    int eng1_start_phase = 0, eng2_start_phase = 0;        // 0 none, 1 starter running, 2 past 25 percent
    int eng1_lightoff_timer = 0, eng2_lightoff_timer = 0;  // s, 30 when the engine reaches the cut-out speed
    int start_pressure_timer = 0;                          // s
    int engine_turns = -1;           // one of the engines makes power; -1 = not yet looked at
    double eng_starter_cutout = 62;  // percent N2, by the engine's model
    int FMC_TO_Derate = 0;
    int FMC_CLB_Derate = 0;
    int FMC_Flex_Temp = 0;  // degrees C, 0 = none
    // as last told to the model or heard from it: what differs has been changed here
    int climb_derate_exchanged = 0, thrust_limit_exchanged = 0;
    double FADEC_Green_line = 0, FADEC_Amber_line = 0;
    double Eng1_TPR = 0, Eng2_TPR = 0;
    double Eng1_N1_calc = 0, Eng2_N1_calc = 0;
    int fire_test_timer = 0;  // s, of the overhead's fire test
    int fire_pass_timer = 0;  // s, for which its result is told
};

extern EngineState engines;
extern const std::span<const Variable> kEngineVariables;
