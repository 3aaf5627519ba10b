#include "systems/air_lamps.h"

#include "lamp_cases.h"

namespace {

TEST(AirLamps, FollowButtonsPowerAndLoadShed) {
    constexpr LampCase kCases[] = {
        {"LPAC_OFF", "pack_l_button 0", 1},
        {"LPAC_OFF", "pack_r_button 0", 0},
        {"LPAC_OFF", "load_shed_level 1", 1},
        {"LPAC_OFF", "load_shed_level 2", 1},
        {"LPAC_OFF", "load_shed_level 3", 0},
        {"LPAC_OFF", "load_shed_level 1, ac_bus_powered 0", 0},
        {"RPAC_OFF", "pack_r_button 0", 1},
        {"RPAC_OFF", "load_shed_level 2", 1},
        {"TAL_FAULT", "trim_air_l_button 0", 1},
        {"TAL_FAULT", "trim_air_l_button 0, ac_bus_powered 0", 0},
        {"TAR_FAULT", "trim_air_r_button 0", 1},
        {"CARGOT_OFF", "TZ_OH_FWDCARGO_AC_Button 0", 1},
        {"CARGOT_OFF", "TZ_OH_FWDCARGO_AC_Button 0, ac_bus_powered 0", 0},
        {"BULK_OFF", "bulk_cargo_heat_button 0", 1},
        {"ACVENT_ALTN", "ventilation_button 0, power_level 5", 1},
        {"ACVENT_ALTN", "ventilation_button 0, power_level 4", 0},
        {"OVFWD_MAN", "fwd_outflow_valve_button 0", 1},
        {"OVFWD_MAN", "aft_outflow_valve_button 0", 0},
        {"OVAFT_MAN", "aft_outflow_valve_button 0", 1},
        {"PLS_INOP", "window_heat_primary_l_side_button 0", 1},
        {"PLF_INOP", "window_heat_primary_l_fwd_button 0", 1},
        {"PRF_INOP", "window_heat_primary_r_fwd_button 0", 1},
        {"PRS_INOP", "window_heat_primary_r_side_button 0", 1},
        {"PRS_INOP", "ac_bus_powered 0", 1},
        {"PRS_INOP", "ac_bus_powered 0, power_level 4", 0},
        {"PRS_INOP", "load_shed_level 1", 1},
        {"PRS_INOP", "load_shed_level 2", 0},
    };
    CheckLamps(
        "power_level 500, ac_bus_powered 1, pack_l_button 1, pack_r_button 1, trim_air_l_button 1, "
        "trim_air_r_button 1, TZ_OH_FWDCARGO_AC_Button 1, bulk_cargo_heat_button 1, ventilation_button 1, "
        "fwd_outflow_valve_button 1, aft_outflow_valve_button 1, "
        "window_heat_primary_l_side_button 1, window_heat_primary_l_fwd_button 1, "
        "window_heat_primary_r_fwd_button 1, window_heat_primary_r_side_button 1",
        kCases, ShowAirLamps);
}

}  // namespace
