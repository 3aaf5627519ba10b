#include "state/takeoff_approach.h"

TakeoffApproachState takeoff_approach;

namespace {
constexpr Variable kTakeoffApproachRows[] = {
    {"v1", &takeoff_approach.v1},
    {"vr", &takeoff_approach.vr},
    {"v2", &takeoff_approach.v2},
    {"V1Shown", &takeoff_approach.v1},
    {"VRShown", &takeoff_approach.vr},
    {"V2Shown", &takeoff_approach.v2},
    {"V1Entered", &takeoff_approach.V1Entered},
    {"VREntered", &takeoff_approach.VREntered},
    {"V2Entered", &takeoff_approach.V2Entered},
    {"vref", &takeoff_approach.vref},
    {"Vref20", &takeoff_approach.Vref20},
    {"Vref25", &takeoff_approach.Vref25},
    {"Vref30", &takeoff_approach.Vref30},
    {"ApproachWeightEntry", &takeoff_approach.ApproachWeightEntry},
    {"WindCorr", &takeoff_approach.WindCorr},
    {"SelTemp", &takeoff_approach.SelTemp},
    {"TakeoffTrimCg", &takeoff_approach.TakeoffTrimCg},
    {"TakeoffTrim", &takeoff_approach.TakeoffTrim},
    {"TogwEntry", &takeoff_approach.TogwEntry},
    {"CrzCg", &takeoff_approach.CrzCg},
    {"RefWindDir", &takeoff_approach.RefWindDir},
    {"RefWindSpeed", &takeoff_approach.RefWindSpeed},
    {"RwyHeading", &takeoff_approach.RwyHeading},
    {"HeadWindComp", &takeoff_approach.HeadWindComp},
    {"CrossWindComp", &takeoff_approach.CrossWindComp},
    {"EoAccelHt", &takeoff_approach.EoAccelHt},
    {"to_flaps", &takeoff_approach.to_flaps},
    {"ldg_flaps", &takeoff_approach.ldg_flaps},
    {"takeoff_flap_list", &takeoff_approach.takeoff_flap_list},
};
}  // namespace

const std::span<const Variable> kTakeoffApproachVariables = kTakeoffApproachRows;
