#include "systems/hydraulic_lamps.h"

#include "frame/lamps.h"
#include "state/cockpit.h"
#include "state/hydraulics.h"
#include "state/power_words.h"

namespace {

constexpr int kLowPumpPressure = 3000;  // psi

bool EnginePumpFault(int pressure) {
    return IsBatteryBusAlive() && pressure < kLowPumpPressure;
}

// A demand pump that waits on AUTO has no fault.
bool DemandPumpFault(int selector, int pump, int pressure) {
    return EnginePumpFault(pressure) && (selector == 0 || pump == 1);
}

constexpr Lamp kHydraulicLamps[] = {
    {NamedVar("TZ_OH_Annun_LEH_FAULT"), [] { return EnginePumpFault(hydraulics.press_eng_l); }},
    {NamedVar("TZ_OH_Annun_REH_FAULT"), [] { return EnginePumpFault(hydraulics.press_eng_r); }},
    {NamedVar("TZ_OH_Annun_LEH_FAULT1"),
     [] {
         return DemandPumpFault(cockpit.hydr_c1_elec_demand_knob, hydraulics.elec_pump_c1,
                                hydraulics.press_c1);
     }},
    {NamedVar("TZ_OH_Annun_REH_FAULT1"),
     [] {
         return DemandPumpFault(cockpit.hydr_c2_elec_demand_knob, hydraulics.elec_pump_c2,
                                hydraulics.press_c2);
     }},
    {NamedVar("TZ_OH_Annun_LEH_FAULT2"),
     [] {
         return DemandPumpFault(cockpit.hydr_l_elec_demand_knob, hydraulics.elec_pump_l,
                                hydraulics.press_elec_l);
     }},
    {NamedVar("TZ_OH_Annun_REH_FAULT2"),
     [] {
         return DemandPumpFault(cockpit.hydr_r_elec_demand_knob, hydraulics.elec_pump_r,
                                hydraulics.press_elec_r);
     }},
};

}  // namespace

void ShowHydraulicLamps() {
    ShowLamps(kHydraulicLamps);
}
