#include "systems/overhead_lamps.h"

#include <gtest/gtest.h>

#include <string>

#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

// A lamp ("TZ_OH_Annun_" goes before its name), the variables that differ from a state in which all are dark,
// and whether it burns then.
struct LampCase {
    const char* lamp;
    const char* set;
    int lit;
};
constexpr LampCase kLampCases[] = {
    // electrical
    {"OFF_BATT", "battery_button 0, power_level 6", 1},
    {"OFF_BATT", "battery_button 0, power_level 5", 0},
    {"OFF_BATT", "battery_button 1", 0},
    {"OFF_APUL", "apu_gen_button 0, power_level 5", 1},
    {"OFF_APUL", "apu_gen_button 0, power_level 4", 0},
    {"OFF_APUR", "apu_gen_button 0, power_level 5", 1},
    {"OFF_APUR", "apu_gen_button 1", 0},
    {"OFF_GCL1", "gen_l1_pwr 0, power_level 5", 1},
    {"OFF_GCL1", "gen_l1_pwr 0, power_level 4", 0},
    {"OFF_GCL1", "gen_l2_pwr 0", 0},
    {"OFF_GCL2", "gen_l2_pwr 0", 1},
    {"OFF_GCR1", "gen_r1_pwr 0", 1},
    {"OFF_GCR2", "gen_r2_pwr 0", 1},
    {"DRIVE_DDL1", "n2_l 25, power_level 5", 1},
    {"DRIVE_DDL1", "n2_l 25, power_level 4", 0},
    {"DRIVE_DDL1", "n2_l 25.1", 0},
    {"DRIVE_DDL1", "n2_l 25.1, drive_disc_l1 1, power_level 0", 1},
    {"DRIVE_DDL1", "drive_disc_l2 1", 0},
    {"DRIVE_DDL1", "n2_r 0", 0},
    {"DRIVE_DDL2", "drive_disc_l2 1", 1},
    {"DRIVE_DDR1", "drive_disc_r1 1", 1},
    {"DRIVE_DDR1", "n2_r 10", 1},
    {"DRIVE_DDR2", "drive_disc_r2 1", 1},
    {"OFF_IFE", "ife_bus_on 0, power_level 5", 1},
    {"OFF_IFE", "ife_bus_on 0, power_level 4", 0},
    {"OFF_CAB", "cab_bus_on 0", 1},
    {"OFF_CAB", "ife_bus_on 0", 0},
    {"AVAIL_FXPL", "fwd_ext_pwr_avail 1, power_level 0", 1},
    {"AVAIL_FXPR", "fwd_ext_pwr_avail 1", 1},
    {"AVAIL_FXPR", "fwd_ext_pwr_avail 1, fwd_ext_pwr_button 1", 0},
    {"RAT_UNLKD", "rat_unlocked 1, power_level 0", 1},
    {"RAT_PRESS", "rat_unlocked 1, ias_kt 80.1", 1},
    {"RAT_PRESS", "rat_unlocked 1, ias_kt 80", 0},
    {"RAT_PRESS", "ias_kt 200", 0},
    {"DISC_PFC", "PfcSwitch 4, power_level 5", 1},
    {"DISC_PFC", "PfcSwitch 4, power_level 4", 0},
    {"DISC_PFC", "PfcSwitch 7", 0},
    {"BAT_IRS", "irs_right 1, power_level 5", 1},
    {"BAT_IRS", "irs_left 1, power_level 5", 1},
    {"BAT_IRS", "irs_left 1, power_level 15", 0},
    {"BAT_IRS", "power_level 5", 0},
    {"TP_ONBAT", "TZ_OH_TOWER_PWR_Button 1, power_level 5", 1},
    {"TP_ONBAT", "TZ_OH_TOWER_PWR_Button 1", 0},
    // inertial reference, flight deck, engines
    {"TRUE_IRS", "TZ_OH_HDG_REF_Button 1", 1},
    {"FDD_OFF", "fd_door_power_button 0", 1},
    {"POXY_ON", "pass_oxygen_on 1", 1},
    {"POXY_ON", "pass_oxygen_on 1, power_level 4", 0},
    {"ECCL_ALTN", "TZ_OH_ECC_L_Button 0, power_level 5", 1},
    {"ECCR_ALTN", "TZ_OH_ECC_R_Button 0, power_level 4", 0},
    // hydraulics
    {"LEH_FAULT", "press_eng_l 2999", 1},
    {"LEH_FAULT", "press_eng_l 2999, power_level 4", 0},
    {"REH_FAULT", "press_eng_r 0, power_level 5", 1},
    {"LEH_FAULT1", "press_c1 2999", 0},
    {"LEH_FAULT1", "press_c1 2999, elec_pump_c1 1", 1},
    {"LEH_FAULT1", "press_c1 2999, hydr_c1_elec_demand_knob 0", 1},
    {"LEH_FAULT1", "press_c1 3000, hydr_c1_elec_demand_knob 0", 0},
    {"REH_FAULT1", "press_c2 0, elec_pump_c2 1", 1},
    {"LEH_FAULT2", "press_elec_l 0, elec_pump_l 1", 1},
    {"REH_FAULT2", "press_elec_r 0, hydr_r_elec_demand_knob 0", 1},
    // fuel
    {"FFPL_PRESS", "press_fwd_l 17", 1},
    {"FFPL_PRESS", "press_fwd_l 18", 0},
    {"FFPL_PRESS", "press_fwd_l 0, ac_bus_powered 0", 0},
    {"FAPL_PRESS", "press_aft_l 17", 1},
    {"FAPL_PRESS", "press_aft_l 17, apu_switch 1", 0},
    {"FFPR_PRESS", "press_fwd_r 17", 1},
    {"FAPR_PRESS", "press_aft_r 17, apu_switch 1", 1},
    {"FCPL_PRESS", "press_ctr_l 17, fuelpump_l_center_button 1", 1},
    {"FCPL_PRESS", "press_ctr_l 17", 0},
    {"FCPR_PRESS", "press_ctr_r 17, fuelpump_r_center_button 1", 1},
    {"FCPR_PRESS", "press_ctr_r 18, fuelpump_r_center_button 1", 0},
    // air
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
    {"ECF_OVRD", "equip_cooling_fwd_button 0", 1},
    {"ECA_OVRD", "equip_cooling_aft_button 0, power_level 4", 0},
};
constexpr const char* kAllDark =
    "power_level 500, ac_bus_powered 1, battery_button 1, apu_gen_button 1, gen_l1_pwr 1, gen_l2_pwr 1, "
    "gen_r1_pwr 1, gen_r2_pwr 1, n2_l 60, n2_r 60, ife_bus_on 1, cab_bus_on 1, PfcSwitch 7, "
    "fd_door_power_button 1, press_eng_l 5100, press_eng_r 5100, press_elec_l 5100, press_elec_r 5100, "
    "press_c1 5100, press_c2 5100, hydr_l_elec_demand_knob 1, hydr_r_elec_demand_knob 1, "
    "hydr_c1_elec_demand_knob 1, hydr_c2_elec_demand_knob 1, press_fwd_l 20, press_aft_l 20, press_fwd_r 20, "
    "press_aft_r 20, press_ctr_l 30, press_ctr_r 30, pack_l_button 1, pack_r_button 1, trim_air_l_button 1, "
    "trim_air_r_button 1, TZ_OH_FWDCARGO_AC_Button 1, bulk_cargo_heat_button 1, ventilation_button 1, "
    "fwd_outflow_valve_button 1, aft_outflow_valve_button 1, window_heat_primary_l_side_button 1, "
    "window_heat_primary_l_fwd_button 1, window_heat_primary_r_fwd_button 1, "
    "window_heat_primary_r_side_button 1, equip_cooling_fwd_button 1, equip_cooling_aft_button 1";

TEST(OverheadLamps, BurnByTheirRulesAndAreToldOnAChange) {
    for (const LampCase& row : kLampCases) {
        FakeHost host;
        double& lamp = host.NamedVar(std::string("TZ_OH_Annun_") + row.lamp);
        SetVariables(kAllDark);
        ShowOverheadLamps();
        EXPECT_EQ(lamp, 0) << row.lamp;
        SetVariables(row.set);
        ShowOverheadLamps();
        EXPECT_EQ(lamp, row.lit) << row.lamp << ": " << row.set;
        const int writes = host.calls["set_named_var"];
        ShowOverheadLamps();
        EXPECT_EQ(host.calls["set_named_var"], writes);
    }
}

}  // namespace
