#include "systems/thrust_rating.h"

#include <algorithm>

#include "state/autoflight.h"
#include "state/engines.h"
#include "state/takeoff_approach.h"

void SelectThrustMode(ThrustMode mode) {
    autoflight.thrust_limit = mode;
}

const char* ThrustModeName() {
    constexpr const char* kNames[] = {"TO", "GA", "CON", "CLB", "CRZ"};
    const int mode = autoflight.thrust_limit;
    return mode >= kThrustTakeoff && mode <= kThrustCruise ? kNames[mode] : "";
}

void SelectTakeoffDerate(int derate) {
    engines.FMC_TO_Derate = derate;
}

void SelectClimbDerate(int derate) {
    engines.FMC_CLB_Derate = derate;
}

void SelectAssumedTemperature(int temperature) {
    takeoff_approach.SelTemp = temperature;
    engines.FMC_Flex_Temp = std::max(temperature, 0);
}
