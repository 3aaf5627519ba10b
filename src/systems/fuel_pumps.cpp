#include "systems/fuel_pumps.h"

#include <algorithm>

#include "frame/lamps.h"
#include "state/cockpit.h"
#include "state/fuel_pumps.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

constexpr int kMainPumpFull = 20, kCentrePumpFull = 30;
constexpr double kPumpN2 = 50;      // percent, of the engine that drives it
constexpr double kEmptyTank = 10;   // lb
constexpr int kAftPumpPower = 450;  // what the left aft pump keeps its pressure from
constexpr int kValveTicks = 40;
constexpr NamedVarRef kValveLamp = NamedVar("TZ_OH_Annun_FCP_VALVE");

void Ramp(int& pressure, int full, bool rises, bool holds) {
    pressure = std::clamp(pressure, 0, full);
    if (rises && pressure < full)
        ++pressure;
    else if (!holds && pressure > 0)
        --pressure;
}

void StepMainPump(int& pressure, int button, double fuel_lb) {
    const bool driven = sim.n2_l > kPumpN2 || sim.n2_r > kPumpN2 || IsPowerUnrestricted();
    Ramp(pressure, kMainPumpFull, button == 1 && driven && fuel_lb > kEmptyTank,
         button == 1 && IsPowerUnrestricted() && fuel_lb >= kEmptyTank);
}

// It feeds the APU too, whatever its button.
void StepLeftAftPump() {
    const int button = cockpit.fuelpump_l_aft_button;
    const bool for_apu = cockpit.apu_switch != 0;
    const bool on = button == 1 || for_apu;
    const bool powered = electrical.power_level >= kAftPumpPower;
    const bool undriven = button == 1 && sim.n2_l <= kPumpN2 && sim.n2_r <= kPumpN2 && !powered && !for_apu;
    const bool fed = sim.n2_l >= kPumpN2 || sim.n2_r >= kPumpN2 || for_apu || electrical.ext_ac_pwr == 1;
    Ramp(fuel_pumps.press_aft_l, kMainPumpFull, on && sim.left_fuel > 0 && !undriven,
         on && (powered || button == 0 || for_apu) && fed && sim.left_fuel >= kEmptyTank);
}

void StepCentrePump(int& pressure, int button, double n2) {
    const bool on = button == 1 && IsPowerUnrestricted();
    Ramp(pressure, kCentrePumpFull, on && n2 > kPumpN2 && sim.centre_fuel > kEmptyTank,
         on && n2 >= kPumpN2 && sim.centre_fuel >= kEmptyTank);
}

}  // namespace

void StepFuelPumps() {
    StepMainPump(fuel_pumps.press_fwd_l, cockpit.fuelpump_l_fwd_button, sim.left_fuel);
    StepMainPump(fuel_pumps.press_fwd_r, cockpit.fuelpump_r_fwd_button, sim.right_fuel);
    StepMainPump(fuel_pumps.press_aft_r, cockpit.fuelpump_r_aft_button, sim.right_fuel);
    StepLeftAftPump();
    StepCentrePump(fuel_pumps.press_ctr_l, cockpit.fuelpump_l_center_button, sim.n2_l);
    StepCentrePump(fuel_pumps.press_ctr_r, cockpit.fuelpump_r_center_button, sim.n2_r);
    if (fuel_pumps.crossfeed_valve_timer > 0 && --fuel_pumps.crossfeed_valve_timer == 0)
        ShowLamp(kValveLamp, false);
}

void FollowCrossfeed(int) {
    fuel_pumps.crossfeed_valve_timer = kValveTicks;
    if (IsAcBusPowered()) ShowLamp(kValveLamp, true);
}
