#include "systems/fuel_lamps.h"

#include "frame/lamps.h"
#include "state/cockpit.h"
#include "state/fuel_pumps.h"
#include "state/power_words.h"

namespace {

bool IsPumpLow(int pressure) {
    constexpr int kLowFuelPressure = 18;
    return IsAcBusPowered() && pressure < kLowFuelPressure;
}

constexpr Lamp kFuelLamps[] = {
    {NamedVar("TZ_OH_Annun_FFPL_PRESS"), [] { return IsPumpLow(fuel_pumps.press_fwd_l); }},
    {NamedVar("TZ_OH_Annun_FAPL_PRESS"),
     [] { return IsPumpLow(fuel_pumps.press_aft_l) && cockpit.apu_switch == 0; }},
    {NamedVar("TZ_OH_Annun_FFPR_PRESS"), [] { return IsPumpLow(fuel_pumps.press_fwd_r); }},
    {NamedVar("TZ_OH_Annun_FAPR_PRESS"), [] { return IsPumpLow(fuel_pumps.press_aft_r); }},
    {NamedVar("TZ_OH_Annun_FCPL_PRESS"),
     [] { return IsPumpLow(fuel_pumps.press_ctr_l) && cockpit.fuelpump_l_center_button == 1; }},
    {NamedVar("TZ_OH_Annun_FCPR_PRESS"),
     [] { return IsPumpLow(fuel_pumps.press_ctr_r) && cockpit.fuelpump_r_center_button == 1; }},
};

}  // namespace

void ShowFuelLamps() {
    ShowLamps(kFuelLamps);
}
