#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// The figures of take-off and approach. Written by their pages, EXEC and fmc/performance/approach_speeds;
/// the flap list comes with the aircraft. Knots.
struct TakeoffApproachState {
    int v1 = 0, vr = 0, v2 = 0;                       // 0 = none; as TAKEOFF REF shows them
    int V1Entered = 0, VREntered = 0, V2Entered = 0;  // by the crew; 0 = computed
    double vref = 0;                                  // the selected approach speed, 0 = none
    double Vref20 = 0, Vref25 = 0, Vref30 = 0;        // by landing flaps; 0 = not yet computed
    double ApproachWeightEntry = 0;                   // lb, 0 = the present gross weight
    int to_flaps = 0, ldg_flaps = 0;
    std::string takeoff_flap_list = ",5,15,20,";  // settings that the variant has
};

extern TakeoffApproachState takeoff_approach;
extern const std::span<const Variable> kTakeoffApproachVariables;
