#include "systems/air_lamps.h"

#include "frame/lamps.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/power_words.h"

namespace {

bool PackIsOff(int button) {
    const int shed = electrical.load_shed_level;
    return IsAcBusPowered() && (button == 0 || shed == 1 || shed == 2);
}

bool IsOutWithPower(int button) {
    return IsAcBusPowered() && button == 0;
}

bool IsManual(int button) {
    return IsBatteryBusAlive() && button == 0;
}

bool HeatIsInoperative(int button) {
    return IsBatteryBusAlive() && (button == 0 || !IsAcBusPowered() || electrical.load_shed_level == 1);
}

constexpr Lamp kAirLamps[] = {
    {NamedVar("TZ_OH_Annun_LPAC_OFF"), [] { return PackIsOff(cockpit.pack_l_button); }},
    {NamedVar("TZ_OH_Annun_RPAC_OFF"), [] { return PackIsOff(cockpit.pack_r_button); }},
    {NamedVar("TZ_OH_Annun_TAL_FAULT"), [] { return IsOutWithPower(cockpit.trim_air_l_button); }},
    {NamedVar("TZ_OH_Annun_TAR_FAULT"), [] { return IsOutWithPower(cockpit.trim_air_r_button); }},
    {NamedVar("TZ_OH_Annun_CARGOT_OFF"), [] { return IsOutWithPower(cockpit.TZ_OH_FWDCARGO_AC_Button); }},
    {NamedVar("TZ_OH_Annun_BULK_OFF"), [] { return IsOutWithPower(cockpit.bulk_cargo_heat_button); }},
    {NamedVar("TZ_OH_Annun_ACVENT_ALTN"), [] { return IsManual(cockpit.ventilation_button); }},
    {NamedVar("TZ_OH_Annun_OVFWD_MAN"), [] { return IsManual(cockpit.fwd_outflow_valve_button); }},
    {NamedVar("TZ_OH_Annun_OVAFT_MAN"), [] { return IsManual(cockpit.aft_outflow_valve_button); }},
    {NamedVar("TZ_OH_Annun_PLS_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_l_side_button); }},
    {NamedVar("TZ_OH_Annun_PLF_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_l_fwd_button); }},
    {NamedVar("TZ_OH_Annun_PRF_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_r_fwd_button); }},
    {NamedVar("TZ_OH_Annun_PRS_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_r_side_button); }},
};

}  // namespace

void ShowAirLamps() {
    ShowLamps(kAirLamps);
}
