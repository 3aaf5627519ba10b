#include <iterator>

#include "module/controls/panels.h"
#include "state/cockpit.h"
#include "state/side.h"
#include "systems/apu.h"
#include "systems/battery.h"
#include "systems/electrical.h"
#include "systems/engine_controls.h"
#include "systems/flight_computers.h"
#include "systems/irs.h"
#include "systems/lights.h"

namespace {

constexpr Control kForward[] = {
    Latching(NamedVar("TZ_OH_HDG_REF_Button"), &cockpit.TZ_OH_HDG_REF_Button),
    Knob(NamedVar("TZ_OH_IRS_LEFT_Switch"), &cockpit.irs_left_knob, [](int) { FollowIrsKnob(kCaptain); }),
    Knob(NamedVar("TZ_OH_IRS_RIGHT_Switch"), &cockpit.irs_right_knob,
         [](int) { FollowIrsKnob(kFirstOfficer); }),
    Guard(NamedVar("TZ_OH_PFC_Safety_Switch"), &cockpit.TZ_OH_PFC_Safety_Switch),
    UnderGuard(NamedVar("TZ_OH_PFC_G_Switch"), &cockpit.TZ_OH_PFC_G_Switch, &cockpit.TZ_OH_PFC_Safety_Switch,
               FollowPfcSwitch),
    Latching(NamedVar("TZ_OH_CAB_UTIL_Button"), &cockpit.cabin_util_button),
    Latching(NamedVar("TZ_OH_PASS_SEATS_Button"), &cockpit.ife_pass_seats_button),
    Latching(NamedVar("TZ_OH_ELE_BAT_Button"), &cockpit.battery_button, FollowBatteryButton),
    Switch(NamedVar("TZ_OH_ELE_APU_Switch"), &cockpit.apu_switch, 0, 2, FollowApuSelector),
    Latching(NamedVar("TZ_OH_APU_GEN_LEFT_Button"), &cockpit.apu_gen_button),
    Latching(NamedVar("TZ_OH_APU_GEN_RIGHT_Button"), &cockpit.apu_gen_button),
    Latching(NamedVar("TZ_OH_FWDEXTPWR_LEFT_Button"), &cockpit.fwd_ext_pwr_button),
    Latching(NamedVar("TZ_OH_FWDEXTPWR_RIGHT_Button"), &cockpit.fwd_ext_pwr_button),
    Latching(NamedVar("TZ_OH_GENCTL_L1_Button"), &cockpit.gen_l1_button),
    Latching(NamedVar("TZ_OH_GENCTL_L2_Button"), &cockpit.gen_l2_button),
    Latching(NamedVar("TZ_OH_GENCTL_R1_Button"), &cockpit.gen_r1_button),
    Latching(NamedVar("TZ_OH_GENCTL_R2_Button"), &cockpit.gen_r2_button),
    Guard(NamedVar("TZ_OH_GEN_L1_Guard_Switch"), &cockpit.TZ_OH_GEN_L1_Guard_Switch),
    Guard(NamedVar("TZ_OH_GEN_L2_Guard_Switch"), &cockpit.TZ_OH_GEN_L2_Guard_Switch),
    Guard(NamedVar("TZ_OH_GEN_R1_Guard_Switch"), &cockpit.TZ_OH_GEN_R1_Guard_Switch),
    Guard(NamedVar("TZ_OH_GEN_R2_Guard_Switch"), &cockpit.TZ_OH_GEN_R2_Guard_Switch),
    OneWay(NamedVar("TZ_OH_DRVDISC_L1_Button"), &cockpit.drive_disc_l1, &cockpit.TZ_OH_GEN_L1_Guard_Switch),
    OneWay(NamedVar("TZ_OH_DRVDISC_L2_Button"), &cockpit.drive_disc_l2, &cockpit.TZ_OH_GEN_L2_Guard_Switch),
    OneWay(NamedVar("TZ_OH_DRVDISC_R1_Button"), &cockpit.drive_disc_r1, &cockpit.TZ_OH_GEN_R1_Guard_Switch),
    OneWay(NamedVar("TZ_OH_DRVDISC_R2_Button"), &cockpit.drive_disc_r2, &cockpit.TZ_OH_GEN_R2_Guard_Switch),
    Switch(NamedVar("TZ_OH_L_WIPER_Switch"), &cockpit.TZ_OH_L_WIPER_Switch, 0, 3),
    Switch(NamedVar("TZ_OH_R_WIPER_Switch"), &cockpit.TZ_OH_R_WIPER_Switch, 0, 3),
};
static_assert(std::size(kForward) == 27);

constexpr Control kMiddle[] = {
    Mirrored(NamedVar("TZ_annun_ovhd_test"), &cockpit.TZ_annun_ovhd_test),
    Momentary(NamedVar("TZ_annun_ovhd_testX"), TestBattery),
    Latching(NamedVar("TZ_OH_TOWER_PWR_Button"), &cockpit.TZ_OH_TOWER_PWR_Button),
    Momentary(NamedVar("TZ_OH_CCR_L_Button"), ResetByMaintenance),
    Latching(NamedVar("TZ_OH_FD_DOOR_Button"), &cockpit.fd_door_power_button),
    Cover(NamedVar("TZ_OH_EMER_LTS_Safety_Switch"), &cockpit.emerg_lights_switch_guard),
    UnderGuard(NamedVar("TZ_OH_EMER_LTS_Switch"), &cockpit.emerg_lights_switch,
               &cockpit.emerg_lights_switch_guard),
    Guard(NamedVar("TZ_OH_PASSOXY_Guard_Switch"), &cockpit.TZ_OH_PASSOXY_Guard_Switch),
    OneWay(NamedVar("TZ_OH_PASS_OXY1_Button"), &cockpit.pass_oxygen_on, &cockpit.TZ_OH_PASSOXY_Guard_Switch),
    Latching(NamedVar("TZ_OH_PRMY_L_SIDE_Button"), &cockpit.window_heat_primary_l_side_button),
    Latching(NamedVar("TZ_OH_PRMY_L_FWD_Button"), &cockpit.window_heat_primary_l_fwd_button),
    Latching(NamedVar("TZ_OH_PRMY_R_FWD_Button"), &cockpit.window_heat_primary_r_fwd_button),
    Latching(NamedVar("TZ_OH_PRMY_R_SIDE_Button"), &cockpit.window_heat_primary_r_side_button),
    Latching(NamedVar("TZ_OH_WH_LFWD_Button"), &cockpit.window_heat_backup_l_fwd_button),
    Latching(NamedVar("TZ_OH_WH_RFWD_Button"), &cockpit.window_heat_backup_r_fwd_button),
    Guard(NamedVar("TZ_OH_RAT_Guard_Switch"), &cockpit.TZ_OH_RAT_Guard_Switch),
    OneWay(NamedVar("TZ_OH_HYD_RAT_Button"), &cockpit.rat_unlocked, &cockpit.TZ_OH_RAT_Guard_Switch),
    Latching(NamedVar("TZ_OH_HYD_L_ENG_Button"), &cockpit.hydr_l_eng_primary_button),
    Latching(NamedVar("TZ_OH_HYD_R_ENG_Button"), &cockpit.hydr_r_eng_primary_button),
    Switch(NamedVar("TZ_OH_ELEC_L_Switch"), &cockpit.hydr_l_elec_demand_knob, 0, 2),
    Switch(NamedVar("TZ_OH_ELEC_C1_Switch"), &cockpit.hydr_c1_elec_demand_knob, 0, 2),
    Switch(NamedVar("TZ_OH_ELEC_C2_Switch"), &cockpit.hydr_c2_elec_demand_knob, 0, 2),
    Switch(NamedVar("TZ_OH_ELEC_R_Switch"), &cockpit.hydr_r_elec_demand_knob, 0, 2),
    Switch(NamedVar("TZ_OH_SEATB_SIGN_Switch"), &cockpit.seatbelts_switch, 0, 2, nullptr, kCueSign),
    Latching(NamedVar("TZ_OH_STORM_Button"), &cockpit.storm_lights_button),
    Latching(NamedVar("TZ_OH_TEXT"), &cockpit.TZ_OH_TEXT),
};
static_assert(std::size(kMiddle) == 26);

constexpr Control kEngine[] = {
    Latching(NamedVar("TZ_OH_FIRE_OHTEST_Button"), &cockpit.TZ_OH_FIRE_OHTEST_Button),
    Mirrored(NamedVar("TZ_OH_APU_FIRE_HNDL"), &cockpit.TZ_OH_APU_FIRE_HNDL),
    Mirrored(NamedVar("TZ_AFT_ENG1_FIRE_HNDL"), &cockpit.TZ_AFT_ENG1_FIRE_HNDL,
             [](int) { FollowFireHandle(1); }),
    Mirrored(NamedVar("TZ_AFT_ENG2_FIRE_HNDL"), &cockpit.TZ_AFT_ENG2_FIRE_HNDL,
             [](int) { FollowFireHandle(2); }),
    Latching(NamedVar("TZ_OH_CFA_FWD_Button"), &cockpit.TZ_OH_CFA_FWD_Button),
    Latching(NamedVar("TZ_OH_CFA_AFT_Button"), &cockpit.TZ_OH_CFA_AFT_Button),
    Guard(NamedVar("TZ_OH_DISCH_Guard_Switch"), &cockpit.TZ_OH_DISCH_Guard_Switch),
    OneWay(NamedVar("TZ_OH_CFA_DISCH_Button"), &cockpit.TZ_OH_CFA_DISCH_Button,
           &cockpit.TZ_OH_DISCH_Guard_Switch),
    Guard(NamedVar("TZ_OH_ECC_L_Guard_Switch"), &cockpit.TZ_OH_ECC_L_Guard_Switch),
    UnderGuard(NamedVar("TZ_OH_ECC_L_Button"), &cockpit.TZ_OH_ECC_L_Button,
               &cockpit.TZ_OH_ECC_L_Guard_Switch),
    Guard(NamedVar("TZ_OH_ECC_R_Guard_Switch"), &cockpit.TZ_OH_ECC_R_Guard_Switch),
    UnderGuard(NamedVar("TZ_OH_ECC_R_Button"), &cockpit.TZ_OH_ECC_R_Button,
               &cockpit.TZ_OH_ECC_R_Guard_Switch),
    Switch(NamedVar("TZ_OH_ENG_L_START_Switch"), &cockpit.TZ_OH_ENG_L_START_Switch, 0, 1),
    Switch(NamedVar("TZ_OH_ENG_R_START_Switch"), &cockpit.TZ_OH_ENG_R_START_Switch, 0, 1),
    Guard(NamedVar("TZ_OH_NZL_L_Guard_Switch"), &cockpit.TZ_OH_NZL_L_Guard_Switch),
    UnderGuard(NamedVar("TZ_OH_NZL_L_Button"), &cockpit.TZ_OH_NZL_L_Button,
               &cockpit.TZ_OH_NZL_L_Guard_Switch),
    Guard(NamedVar("TZ_OH_NZL_R_Guard_Switch"), &cockpit.TZ_OH_NZL_R_Guard_Switch),
    UnderGuard(NamedVar("TZ_OH_NZL_R_Button"), &cockpit.TZ_OH_NZL_R_Button,
               &cockpit.TZ_OH_NZL_R_Guard_Switch),
    Latching(NamedVar("TZ_OH_LPUMP_FWD_Button"), &cockpit.fuelpump_l_fwd_button),
    Latching(NamedVar("TZ_OH_LPUMP_AFT_Button"), &cockpit.fuelpump_l_aft_button),
    Latching(NamedVar("TZ_OH_RPUMP_FWD_Button"), &cockpit.fuelpump_r_fwd_button),
    Latching(NamedVar("TZ_OH_RPUMP_AFT_Button"), &cockpit.fuelpump_r_aft_button),
    Latching(NamedVar("TZ_OH_CNTRPUMP_L_Button"), &cockpit.fuelpump_l_center_button),
    Latching(NamedVar("TZ_OH_CNTRPUMP_R_Button"), &cockpit.fuelpump_r_center_button),
    Latching(NamedVar("TZ_OH_FUEL_CROSSFEED_Button"), &cockpit.fuelpump_crosfeed_button),
    Latching(NamedVar("TZ_OH_FUEL_BALANCE_Button"), &cockpit.fuel_balance_button),
    Latching(NamedVar("TZ_OH_FUEL_ARM_Button"), &cockpit.TZ_OH_FUEL_ARM_Button),
    Switch(NamedVar("TZ_OH_WING_ANTICE_Switch"), &cockpit.TZ_OH_WING_ANTICE_Switch, 0, 2),
    Switch(NamedVar("TZ_OH_AI_L_ENG_Switch"), &cockpit.TZ_OH_AI_L_ENG_Switch, 0, 2),
    Switch(NamedVar("TZ_OH_AI_R_ENG_Switch"), &cockpit.TZ_OH_AI_R_ENG_Switch, 0, 2),
    Latching(NamedVar("TZ_OH_LT_BEACON_Button"), &cockpit.beacon_lights_button,
             [](int) { FollowLight(Light::kBeacon); }),
    Latching(NamedVar("TZ_OH_LT_NAV_Button"), &cockpit.nav_lights_button,
             [](int) { FollowLight(Light::kNav); }),
    Latching(NamedVar("TZ_OH_LT_LOGO_Button"), &cockpit.logo_lights_button,
             [](int) { FollowLight(Light::kLogo); }),
    Latching(NamedVar("TZ_OH_LT_WING_Button"), &cockpit.wing_lights_button,
             [](int) { FollowLight(Light::kWing); }),
    Latching(NamedVar("TZ_OH_LT_STROBE_Switch"), &cockpit.strobe_lights_button,
             [](int) { FollowLight(Light::kStrobe); }),
    Latching(NamedVar("TZ_OH_LT_TAXI_Switch"), &cockpit.taxi_lights_button,
             [](int) { FollowLight(Light::kTaxi); }),
    Latching(NamedVar("TZ_OH_LT_L_RWYTF_Switch"), &cockpit.ovhd_rwy_lights_l_switch),
    Latching(NamedVar("TZ_OH_LT_R_RWYTF_Switch"), &cockpit.ovhd_rwy_lights_r_switch),
    KeptByModel(
        Latching(NamedVar("TZ_OH_LDG_LEFT_Switch"), &cockpit.ovhd_ldg_lights_l_switch, FollowLandingLights)),
    KeptByModel(
        Latching(NamedVar("TZ_OH_LDG_NSE_Switch"), &cockpit.ovhd_nose_lights_switch, FollowLandingLights)),
    KeptByModel(
        Latching(NamedVar("TZ_OH_LDG_RIGHT_Switch"), &cockpit.ovhd_ldg_lights_r_switch, FollowLandingLights)),
    Latching(NamedVar("TZ_OH_Humid_Button"), &cockpit.humid_button),
};
static_assert(std::size(kEngine) == 42);

}  // namespace

std::span<const Control> ForwardOverheadControls() {
    return kForward;
}
std::span<const Control> MiddleOverheadControls() {
    return kMiddle;
}
std::span<const Control> EngineOverheadControls() {
    return kEngine;
}
