#include "systems/hydraulics.h"

#include <algorithm>

#include "frame/named_variables.h"
#include "state/cockpit.h"
#include "state/hydraulics.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "systems/ram_air_turbine.h"

namespace {

constexpr int kPumpOff = 0, kPumpAuto = 1, kPumpOn = 2;  // demand pump selectors
constexpr double kEnginePumpN1 = 10, kElectricPumpN1 = 16;
constexpr int kCentrePumpsPower = 400;  // from here on the supply carries both pumps of a side

// psi, and psi a tick
constexpr int kFullPressure = 5000, kPumpRise = 150;
constexpr int kFloor = 80, kRightFloor = 90;
constexpr int kTurbinePressure = 3000, kTurbineRise = 75;
constexpr int kDecayPercent = 3;

bool IsEitherFast() {
    return sim.n1_l > kElectricPumpN1 || sim.n1_r > kElectricPumpN1;
}

bool AreBothSlow() {
    return sim.n1_l < kElectricPumpN1 && sim.n1_r < kElectricPumpN1;
}

void TurnEnginePump(int& pump, int button, double n1) {
    if (button != 1 || n1 < kEnginePumpN1)
        pump = 0;
    else if (n1 > kEnginePumpN1)
        pump = 1;
}

// Between its two rules a pump on AUTO stays as it is.
void SwitchAuto(int& pump, bool on, bool off) {
    if (off)
        pump = 0;
    else if (on)
        pump = 1;
}

void SwitchSidePump(int& pump, int selector, int engine_pump) {
    if (selector == kPumpAuto) {
        const bool allowed = engine_pump == 0 && IsPowerUnrestricted();
        SwitchAuto(pump, allowed && IsEitherFast(), !allowed || AreBothSlow());
    } else {
        pump = selector == kPumpOn && AreAllBusesAlive() ? 1 : 0;
    }
}

// A weak supply carries only one electric pump of a side.
void SwitchCentrePump(int& pump, int selector, int side_pump) {
    const bool strong = electrical.power_level >= kCentrePumpsPower;
    if (selector == kPumpAuto)
        SwitchAuto(pump, strong && IsEitherFast(), !strong || AreBothSlow());
    else
        pump = selector == kPumpOn && AreAllBusesAlive() && (strong || side_pump == 0) ? 1 : 0;
}

void SwitchPumps() {
    HydraulicState& h = hydraulics;
    TurnEnginePump(h.eng_pump_l, cockpit.hydr_l_eng_primary_button, sim.n1_l);
    TurnEnginePump(h.eng_pump_r, cockpit.hydr_r_eng_primary_button, sim.n1_r);
    SwitchSidePump(h.elec_pump_l, cockpit.hydr_l_elec_demand_knob, h.eng_pump_l);
    SwitchSidePump(h.elec_pump_r, cockpit.hydr_r_elec_demand_knob, h.eng_pump_r);
    SwitchCentrePump(h.elec_pump_c1, cockpit.hydr_c1_elec_demand_knob, h.elec_pump_l);
    SwitchCentrePump(h.elec_pump_c2, cockpit.hydr_c2_elec_demand_knob, h.elec_pump_r);
}

// Cut to a whole number, so that it ends on the floor.
int Decayed(int pressure, int floor) {
    if (pressure <= floor) return pressure;
    return floor + (pressure - floor) * (100 - kDecayPercent) / 100;
}

struct PressureSource {
    int HydraulicState::*pump;
    int HydraulicState::*pressure;
    int floor;
};
constexpr PressureSource kSources[] = {
    {&HydraulicState::eng_pump_l, &HydraulicState::press_eng_l, kFloor},
    {&HydraulicState::elec_pump_l, &HydraulicState::press_elec_l, kFloor},
    {&HydraulicState::elec_pump_c1, &HydraulicState::press_c1, kFloor},
    {&HydraulicState::elec_pump_c2, &HydraulicState::press_c2, kFloor},
    {&HydraulicState::eng_pump_r, &HydraulicState::press_eng_r, kRightFloor},
    {&HydraulicState::elec_pump_r, &HydraulicState::press_elec_r, kRightFloor},
};

void StepSources() {
    for (const PressureSource& source : kSources) {
        int& pressure = hydraulics.*source.pressure;
        // A pressure may have been set to any number.
        pressure = std::clamp(pressure, 0, kFullPressure + kPumpRise);
        if (hydraulics.*source.pump == 0)
            pressure = Decayed(pressure, source.floor);
        else if (pressure < kFullPressure)
            pressure += kPumpRise;
    }
}

void StepCentre() {
    HydraulicState& h = hydraulics;
    const int best = std::max(h.press_c1, h.press_c2);
    if (DoesTurbineTurn() && best <= kTurbinePressure) {
        if (h.tz_hyd_press_c < kTurbinePressure)
            h.tz_hyd_press_c = std::min(h.tz_hyd_press_c + kTurbineRise, kTurbinePressure);
    } else if (best <= kFloor) {
        h.tz_hyd_press_c = Decayed(h.tz_hyd_press_c, kFloor);
    } else {
        h.tz_hyd_press_c = best;
    }
}

void PublishPressures() {
    WriteNamedVar(NamedVar("tz_hyd_press_l"), hydraulics.tz_hyd_press_l);
    WriteNamedVar(NamedVar("tz_hyd_press_c"), hydraulics.tz_hyd_press_c);
    WriteNamedVar(NamedVar("tz_hyd_press_r"), hydraulics.tz_hyd_press_r);
}

}  // namespace

void StepHydraulics() {
    SwitchPumps();
    StepSources();
    hydraulics.tz_hyd_press_l = std::max(hydraulics.press_eng_l, hydraulics.press_elec_l);
    hydraulics.tz_hyd_press_r = std::max(hydraulics.press_eng_r, hydraulics.press_elec_r);
    StepCentre();
    PublishPressures();
}
