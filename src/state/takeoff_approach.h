#pragma once

#include <span>
#include <string>

#include "state/variable.h"

constexpr int kNoAssumedTemperature = -99;

/// The figures of take-off and approach. Written by their pages, EXEC and fmc/performance;
/// the flap list comes with the aircraft. Knots.
struct TakeoffApproachState {
    int v1 = 0, vr = 0, v2 = 0;                       // 0 = none; as TAKEOFF REF shows them
    int V1Entered = 0, VREntered = 0, V2Entered = 0;  // by the crew; 0 = computed
    double vref = 0;                                  // the selected approach speed, 0 = none
    double Vref20 = 0, Vref25 = 0, Vref30 = 0;        // by landing flaps; 0 = not yet computed
    double ApproachWeightEntry = 0;                   // lb, 0 = the present gross weight
    double WindCorr = 5;                              // added to vref, 0 to 20
    int to_flaps = 0, ldg_flaps = 0;
    int SelTemp = kNoAssumedTemperature;          // degrees C, 0 to 99
    double TakeoffTrimCg = 0, TakeoffTrim = 0;    // percent as entered, 0 = none; units of trim for it
    double TogwEntry = 0;                         // lb, weight of the take-off speeds; 0 = the gross weight
    double CrzCg = 20;                            // percent
    double RefWindDir = 0, RefWindSpeed = 0;      // at take-off; degrees magnetic
    double RwyHeading = 0;                        // degrees magnetic
    double HeadWindComp = 0, CrossWindComp = 0;   // from behind and from the right positive
    int EoAccelHt = 1000;                         // ft
    std::string takeoff_flap_list = ",5,15,20,";  // settings that the variant has
};

extern TakeoffApproachState takeoff_approach;
extern const std::span<const Variable> kTakeoffApproachVariables;
