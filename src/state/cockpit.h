#pragma once

#include <span>

#include "state/variable.h"

/// What the crew has set: the shadow of each cockpit control. The shadow is the truth for all logic; the
/// named variable of the same control only shows it. A control whose shadow has no name of its own bears that
/// of its variable. Positions count from 0; a button is 0 out, 1 in.
struct CockpitState {
    // overhead
    int pack_l_button = 0;       // TZ_OH_AC_LPACK_Button
    int pack_r_button = 0;       // TZ_OH_AC_RPACK_Button
    int ventilation_button = 0;  // TZ_OH_AC_VENT_Button
    int TZ_OH_AI_L_ENG_Switch = 0;
    int TZ_OH_AI_R_ENG_Switch = 0;
    int TZ_OH_APU_FIRE_HNDL = 0;
    int TZ_annun_ovhd_test = 0;       // the model's lamp test
    int apu_gen_button = 0;           // TZ_OH_APU_GEN_LEFT_Button
    int bulk_cargo_heat_button = 0;   // TZ_OH_Bulk_Button
    int TZ_OH_CABIN_Temp_Switch = 3;  // 0 cold to 6 warm
    int TZ_OH_CAB_CHM_Button = 0;
    int cabin_util_button = 0;  // TZ_OH_CAB_UTIL_Button
    int TZ_OH_CFA_AFT_Button = 0;
    int TZ_OH_CFA_DISCH_Button = 0;
    int TZ_OH_CFA_FWD_Button = 0;
    int fuelpump_l_center_button = 0;  // TZ_OH_CNTRPUMP_L_Button
    int fuelpump_r_center_button = 0;  // TZ_OH_CNTRPUMP_R_Button
    int TZ_OH_DISCH_Guard_Switch = 0;
    int drive_disc_l1 = 0;       // TZ_OH_DRVDISC_L1_Button
    int drive_disc_l2 = 0;       // TZ_OH_DRVDISC_L2_Button
    int drive_disc_r1 = 0;       // TZ_OH_DRVDISC_R1_Button
    int drive_disc_r2 = 0;       // TZ_OH_DRVDISC_R2_Button
    int TZ_OH_ECC_L_Button = 1;  // 0 alternate mode, 1 normal
    int TZ_OH_ECC_L_Guard_Switch = 0;
    int TZ_OH_ECC_R_Button = 1;
    int TZ_OH_ECC_R_Guard_Switch = 0;
    int hydr_c1_elec_demand_knob = 0;   // TZ_OH_ELEC_C1_Switch
    int hydr_c2_elec_demand_knob = 0;   // TZ_OH_ELEC_C2_Switch
    int hydr_l_elec_demand_knob = 0;    // TZ_OH_ELEC_L_Switch
    int hydr_r_elec_demand_knob = 0;    // TZ_OH_ELEC_R_Switch
    int apu_switch = 0;                 // TZ_OH_ELE_APU_Switch
    int battery_button = 0;             // TZ_OH_ELE_BAT_Button
    int emerg_lights_switch_guard = 0;  // TZ_OH_EMER_LTS_Safety_Switch
    int emerg_lights_switch = 3;        // TZ_OH_EMER_LTS_Switch: 1 off, 2 on, 3 armed, 4 as well
    int TZ_OH_ENG_L_START_Switch = 1;   // 0 START, 1 NORM
    int TZ_OH_ENG_R_START_Switch = 1;
    int equip_cooling_aft_button = 0;  // TZ_OH_EQPCOOL_AFT_Button
    int equip_cooling_fwd_button = 0;  // TZ_OH_EQPCOOL_FWD_Button
    int fd_door_power_button = 0;      // TZ_OH_FD_DOOR_Button
    int TZ_OH_FIRE_OHTEST_Button = 0;
    int TZ_OH_FLTDK_Temp_Switch = 3;
    int TZ_OH_FUEL_ARM_Button = 0;
    int fuel_balance_button = 0;       // TZ_OH_FUEL_BALANCE_Button
    int fuelpump_crosfeed_button = 0;  // TZ_OH_FUEL_CROSSFEED_Button
    int TZ_OH_FWDCARGO_AC_Button = 0;
    int TZ_OH_FWDCARGO_FLOW_Switch = 0;
    int fwd_ext_pwr_button = 0;  // TZ_OH_FWDEXTPWR_LEFT_Button
    int gen_l1_button = 0;       // TZ_OH_GENCTL_L1_Button
    int gen_l2_button = 0;       // TZ_OH_GENCTL_L2_Button
    int gen_r1_button = 0;       // TZ_OH_GENCTL_R1_Button
    int gen_r2_button = 0;       // TZ_OH_GENCTL_R2_Button
    int TZ_OH_GEN_L1_Guard_Switch = 0;
    int TZ_OH_GEN_L2_Guard_Switch = 0;
    int TZ_OH_GEN_R1_Guard_Switch = 0;
    int TZ_OH_GEN_R2_Guard_Switch = 0;
    int TZ_OH_GND_TEST_Switch = 0;
    int TZ_OH_HDG_REF_Button = 0;
    int hydr_l_eng_primary_button = 0;  // TZ_OH_HYD_L_ENG_Button
    int rat_unlocked = 0;               // TZ_OH_HYD_RAT_Button
    int hydr_r_eng_primary_button = 0;  // TZ_OH_HYD_R_ENG_Button
    int humid_button = 0;               // TZ_OH_Humid_Button
    int irs_left_knob = 0;              // TZ_OH_IRS_LEFT_Switch
    int irs_right_knob = 0;             // TZ_OH_IRS_RIGHT_Switch
    int ovhd_ldg_lights_l_switch = 0;   // TZ_OH_LDG_LEFT_Switch
    int ovhd_nose_lights_switch = 0;    // TZ_OH_LDG_NSE_Switch
    int ovhd_ldg_lights_r_switch = 0;   // TZ_OH_LDG_RIGHT_Switch
    int fuelpump_l_aft_button = 0;      // TZ_OH_LPUMP_AFT_Button
    int fuelpump_l_fwd_button = 0;      // TZ_OH_LPUMP_FWD_Button
    int beacon_lights_button = 0;       // TZ_OH_LT_BEACON_Button
    int logo_lights_button = 0;         // TZ_OH_LT_LOGO_Button
    int ovhd_rwy_lights_l_switch = 0;   // TZ_OH_LT_L_RWYTF_Switch
    int nav_lights_button = 0;          // TZ_OH_LT_NAV_Button
    int ovhd_rwy_lights_r_switch = 0;   // TZ_OH_LT_R_RWYTF_Switch
    int strobe_lights_button = 0;       // TZ_OH_LT_STROBE_Switch
    int taxi_lights_button = 0;         // TZ_OH_LT_TAXI_Switch
    int wing_lights_button = 0;         // TZ_OH_LT_WING_Button
    int TZ_OH_L_WIPER_Switch = 0;
    int TZ_OH_NZL_L_Button = 0;
    int TZ_OH_NZL_L_Guard_Switch = 0;
    int TZ_OH_NZL_R_Button = 0;
    int TZ_OH_NZL_R_Guard_Switch = 0;
    int aft_outflow_valve_button = 0;  // TZ_OH_OV_AFT_Button
    int fwd_outflow_valve_button = 0;  // TZ_OH_OV_FWD_Button
    int TZ_OH_PASSOXY_Guard_Switch = 0;
    int pass_oxygen_on = 0;         // TZ_OH_PASS_OXY1_Button
    int ife_pass_seats_button = 0;  // TZ_OH_PASS_SEATS_Button
    int TZ_OH_PFC_G_Switch = 0;
    int TZ_OH_PFC_Safety_Switch = 0;
    int window_heat_primary_l_fwd_button = 0;   // TZ_OH_PRMY_L_FWD_Button
    int window_heat_primary_l_side_button = 0;  // TZ_OH_PRMY_L_SIDE_Button
    int window_heat_primary_r_fwd_button = 0;   // TZ_OH_PRMY_R_FWD_Button
    int window_heat_primary_r_side_button = 0;  // TZ_OH_PRMY_R_SIDE_Button
    int TZ_OH_RAT_Guard_Switch = 0;
    int recirc_fans_lower_button = 0;  // TZ_OH_RECIRC_LOW_Button
    int recirc_fans_upper_button = 0;  // TZ_OH_RECIRC_UPP_Button
    int fuelpump_r_aft_button = 0;     // TZ_OH_RPUMP_AFT_Button
    int fuelpump_r_fwd_button = 0;     // TZ_OH_RPUMP_FWD_Button
    int TZ_OH_R_WIPER_Switch = 0;
    int seatbelts_switch = 0;     // TZ_OH_SEATB_SIGN_Switch
    int storm_lights_button = 0;  // TZ_OH_STORM_Button
    int TZ_OH_TEXT = 0;
    int TZ_OH_TOWER_PWR_Button = 0;
    int trim_air_l_button = 0;  // TZ_OH_TRIMAIR_L_Button
    int trim_air_r_button = 0;  // TZ_OH_TRIMAIR_R_Button
    int TZ_OH_VENT_Guard_Switch = 0;
    int window_heat_backup_l_fwd_button = 0;  // TZ_OH_WH_LFWD_Button
    int window_heat_backup_r_fwd_button = 0;  // TZ_OH_WH_RFWD_Button
    int TZ_OH_WING_ANTICE_Switch = 0;
    // glareshield, main panel, pedestal
    int TZ_MCP_AP_DISENGAGE_Bar = 0;
    int hdg_trk_mode = 0;   // TZ_MCP_HDG_TRK_Status: 0 heading, 1 track
    int mach_selected = 0;  // the MCP speed is a Mach number; TZ_MCP_IAS_MACH_Button changes over
    // where the turning knobs have last been seen
    int TZ_MCP_L_BAROSET_Knob = 0;
    int TZ_MCP_R_BAROSET_Knob = 0;
    int TZ_MCP_L_SEL_RB_Knob = 0;
    int TZ_MCP_L_NDMAP_Knob = 0;  // 0 MAP, 1 PLAN
    int TZ_MCP_R_NDMAP_Knob = 0;
    int capt_fd_switch = 0;  // TZ_MCP_L_FD_Switch
    int fo_fd_switch = 0;    // TZ_MCP_R_FD_Switch
    int TZ_MAIN_AIRDATA_ATT_L_Switch = 0;
    int TZ_MAIN_AIRDATA_ATT_R_Switch = 0;
    int TZ_MAIN_PFD_MFD_L_Switch = 0;
    int TZ_AFT_ENG1_FIRE_HNDL = 0;
    int TZ_AFT_ENG2_FIRE_HNDL = 0;
    int TZ_AFT_FD_DOOR_Switch = 0;
    int TZ_AFT_OBS_Audio_Switch = 0;
    int TZ_AFT_Transponder_Knob = 0;
    int TZ_THQ_Altn_flpas_Switch = 0;
    int TZ_THQ_Stab_Norm_L2 = 0;
    int TZ_THQ_Stab_Norm_R2 = 0;
    int TZ_OXYGEN_TEST_Switch01 = 0;
    int TZ_tcp1_FLAP_OVRD = 0;
    int TZ_tcp1_GEAR_OVRD = 0;
    int TZ_tcp1_TERR_OVRD = 0;
    int autobrake_switch = 0;  // auto_brake_switch
    int TZ_MCP_L_MFD_L_GREEN = 0;
    int TZ_MCP_L_MFD_R_GREEN = 0;
    int TZ_MCP_R_MFD_L_GREEN = 0;
    int TZ_MCP_R_MFD_R_GREEN = 0;
    int TZ_MCP_Annun_CAUT = 0;
    int TZ_MCP_Annun_WARN = 0;
    int TZ_MCP_AnnunR_CAUT = 0;
    int TZ_MCP_AnnunR_WARN = 0;
    // fuel control
    int eng1_thrott = 2;  // 1 run, 2 cut-off
    int eng2_thrott = 2;
    // keyboard shortcuts and latches of the engine start
    int autostart_pending = 0;  // the host's engine auto-start is running
    int eng1_start_latch = 0;   // fuel has just been opened
    int eng2_start_latch = 0;
};

extern CockpitState cockpit;
extern const std::span<const Variable> kCockpitVariables;
