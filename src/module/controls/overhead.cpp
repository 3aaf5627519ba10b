#include <iterator>

#include "module/controls/panels.h"
#include "state/side.h"
#include "systems/air_temperatures.h"
#include "systems/apu.h"
#include "systems/battery.h"
#include "systems/electrical.h"
#include "systems/engine_controls.h"
#include "systems/engine_start.h"
#include "systems/fire_test.h"
#include "systems/flight_computers.h"
#include "systems/fuel_pumps.h"
#include "systems/irs.h"
#include "systems/lights.h"

namespace {

constexpr Control kForward[] = {
    Latching("TZ_OH_HDG_REF_Button"),
    Knob("TZ_OH_IRS_LEFT_Switch", On<kCaptain, FollowIrsKnob>),
    Knob("TZ_OH_IRS_RIGHT_Switch", On<kFirstOfficer, FollowIrsKnob>),
    Guard("TZ_OH_PFC_Safety_Switch"),
    UnderGuard("TZ_OH_PFC_G_Switch", "TZ_OH_PFC_Safety_Switch", FollowPfcSwitch),
    Latching("TZ_OH_CAB_UTIL_Button"),
    Latching("TZ_OH_PASS_SEATS_Button"),
    Latching("TZ_OH_ELE_BAT_Button", FollowBatteryButton),
    Switch("TZ_OH_ELE_APU_Switch", 0, 2, FollowApuSelector),
    Latching("TZ_OH_APU_GEN_LEFT_Button"),
    Latching("TZ_OH_APU_GEN_RIGHT_Button"),
    Latching("TZ_OH_FWDEXTPWR_LEFT_Button"),
    Latching("TZ_OH_FWDEXTPWR_RIGHT_Button"),
    Latching("TZ_OH_GENCTL_L1_Button"),
    Latching("TZ_OH_GENCTL_L2_Button"),
    Latching("TZ_OH_GENCTL_R1_Button"),
    Latching("TZ_OH_GENCTL_R2_Button"),
    Guard("TZ_OH_GEN_L1_Guard_Switch"),
    Guard("TZ_OH_GEN_L2_Guard_Switch"),
    Guard("TZ_OH_GEN_R1_Guard_Switch"),
    Guard("TZ_OH_GEN_R2_Guard_Switch"),
    OneWay("TZ_OH_DRVDISC_L1_Button", "TZ_OH_GEN_L1_Guard_Switch"),
    OneWay("TZ_OH_DRVDISC_L2_Button", "TZ_OH_GEN_L2_Guard_Switch"),
    OneWay("TZ_OH_DRVDISC_R1_Button", "TZ_OH_GEN_R1_Guard_Switch"),
    OneWay("TZ_OH_DRVDISC_R2_Button", "TZ_OH_GEN_R2_Guard_Switch"),
    Switch("TZ_OH_L_WIPER_Switch", 0, 3),
    Switch("TZ_OH_R_WIPER_Switch", 0, 3),
};
static_assert(std::size(kForward) == 27);

constexpr Control kMiddle[] = {
    Mirrored("TZ_annun_ovhd_test"),
    Momentary("TZ_annun_ovhd_testX", TestBattery),
    Latching("TZ_OH_TOWER_PWR_Button"),
    Momentary("TZ_OH_CCR_L_Button", ResetByMaintenance),
    Latching("TZ_OH_FD_DOOR_Button"),
    Cover("TZ_OH_EMER_LTS_Safety_Switch"),
    TurnsOver(WithGuard(Switch("TZ_OH_EMER_LTS_Switch", 1, 3), "TZ_OH_EMER_LTS_Safety_Switch")),
    Guard("TZ_OH_PASSOXY_Guard_Switch"),
    OneWay("TZ_OH_PASS_OXY1_Button", "TZ_OH_PASSOXY_Guard_Switch"),
    Latching("TZ_OH_PRMY_L_SIDE_Button"),
    Latching("TZ_OH_PRMY_L_FWD_Button"),
    Latching("TZ_OH_PRMY_R_FWD_Button"),
    Latching("TZ_OH_PRMY_R_SIDE_Button"),
    Latching("TZ_OH_WH_LFWD_Button"),
    Latching("TZ_OH_WH_RFWD_Button"),
    Guard("TZ_OH_RAT_Guard_Switch"),
    OneWay("TZ_OH_HYD_RAT_Button", "TZ_OH_RAT_Guard_Switch"),
    Latching("TZ_OH_HYD_L_ENG_Button"),
    Latching("TZ_OH_HYD_R_ENG_Button"),
    Switch("TZ_OH_ELEC_L_Switch", 0, 2),
    Switch("TZ_OH_ELEC_C1_Switch", 0, 2),
    Switch("TZ_OH_ELEC_C2_Switch", 0, 2),
    Switch("TZ_OH_ELEC_R_Switch", 0, 2),
    Switch("TZ_OH_SEATB_SIGN_Switch", 0, 2, nullptr, kCueSign),
    Latching("TZ_OH_STORM_Button"),
    Latching("TZ_OH_TEXT"),
};
static_assert(std::size(kMiddle) == 26);

constexpr Control kEngine[] = {
    Latching("TZ_OH_FIRE_OHTEST_Button", FollowFireTest),
    Mirrored("TZ_OH_APU_FIRE_HNDL"),
    Mirrored("TZ_AFT_ENG1_FIRE_HNDL", [](int) { FollowFireHandle(1); }),
    Mirrored("TZ_AFT_ENG2_FIRE_HNDL", [](int) { FollowFireHandle(2); }),
    Latching("TZ_OH_CFA_FWD_Button"),
    Latching("TZ_OH_CFA_AFT_Button"),
    Guard("TZ_OH_DISCH_Guard_Switch"),
    OneWay("TZ_OH_CFA_DISCH_Button", "TZ_OH_DISCH_Guard_Switch"),
    Guard("TZ_OH_ECC_L_Guard_Switch"),
    UnderGuard("TZ_OH_ECC_L_Button", "TZ_OH_ECC_L_Guard_Switch"),
    Guard("TZ_OH_ECC_R_Guard_Switch"),
    UnderGuard("TZ_OH_ECC_R_Button", "TZ_OH_ECC_R_Guard_Switch"),
    TurnsOver(Switch("TZ_OH_ENG_L_START_Switch", 0, 1, [](int) { FollowStartSelector(1); })),
    TurnsOver(Switch("TZ_OH_ENG_R_START_Switch", 0, 1, [](int) { FollowStartSelector(2); })),
    Guard("TZ_OH_NZL_L_Guard_Switch"),
    UnderGuard("TZ_OH_NZL_L_Button", "TZ_OH_NZL_L_Guard_Switch"),
    Guard("TZ_OH_NZL_R_Guard_Switch"),
    UnderGuard("TZ_OH_NZL_R_Button", "TZ_OH_NZL_R_Guard_Switch"),
    Latching("TZ_OH_LPUMP_FWD_Button"),
    Latching("TZ_OH_LPUMP_AFT_Button"),
    Latching("TZ_OH_RPUMP_FWD_Button"),
    Latching("TZ_OH_RPUMP_AFT_Button"),
    Latching("TZ_OH_CNTRPUMP_L_Button"),
    Latching("TZ_OH_CNTRPUMP_R_Button"),
    Latching("TZ_OH_FUEL_CROSSFEED_Button", FollowCrossfeed),
    Latching("TZ_OH_FUEL_BALANCE_Button"),
    Latching("TZ_OH_FUEL_ARM_Button"),
    Switch("TZ_OH_WING_ANTICE_Switch", 0, 2),
    Switch("TZ_OH_AI_L_ENG_Switch", 0, 2),
    Switch("TZ_OH_AI_R_ENG_Switch", 0, 2),
    Latching("TZ_OH_LT_BEACON_Button", [](int) { FollowLight(Light::kBeacon); }),
    Latching("TZ_OH_LT_NAV_Button", [](int) { FollowLight(Light::kNav); }),
    Latching("TZ_OH_LT_LOGO_Button", [](int) { FollowLight(Light::kLogo); }),
    Latching("TZ_OH_LT_WING_Button", [](int) { FollowLight(Light::kWing); }),
    Latching("TZ_OH_LT_STROBE_Switch", [](int) { FollowLight(Light::kStrobe); }),
    Latching("TZ_OH_LT_TAXI_Switch", [](int) { FollowLight(Light::kTaxi); }),
    Latching("TZ_OH_LT_L_RWYTF_Switch"),
    Latching("TZ_OH_LT_R_RWYTF_Switch"),
    KeptByModel(Latching("TZ_OH_LDG_LEFT_Switch", FollowLandingLights)),
    KeptByModel(Latching("TZ_OH_LDG_NSE_Switch", FollowLandingLights)),
    KeptByModel(Latching("TZ_OH_LDG_RIGHT_Switch", FollowLandingLights)),
    Latching("TZ_OH_Humid_Button"),
};
static_assert(std::size(kEngine) == 42);

constexpr Control kAir[] = {
    Latching("TZ_OH_FWDCARGO_AC_Button"),
    Switch("TZ_OH_FWDCARGO_FLOW_Switch", 0, 2),
    Latching("TZ_OH_Bulk_Button"),
    Latching("TZ_OH_EQPCOOL_FWD_Button"),
    Latching("TZ_OH_EQPCOOL_AFT_Button"),
    Latching("TZ_OH_RECIRC_UPP_Button"),
    Latching("TZ_OH_RECIRC_LOW_Button"),
    Switch("TZ_OH_FLTDK_Temp_Switch", 0, 6, FollowTemperatureSelectors),
    Switch("TZ_OH_CABIN_Temp_Switch", 0, 6, FollowTemperatureSelectors),
    Latching("TZ_OH_AC_LPACK_Button"),
    Latching("TZ_OH_AC_RPACK_Button"),
    Latching("TZ_OH_TRIMAIR_L_Button"),
    Latching("TZ_OH_TRIMAIR_R_Button"),
    Guard("TZ_OH_VENT_Guard_Switch"),
    UnderGuard("TZ_OH_AC_VENT_Button", "TZ_OH_VENT_Guard_Switch"),
    Latching("TZ_OH_OV_FWD_Button"),
    Latching("TZ_OH_OV_AFT_Button"),
};
static_assert(std::size(kAir) == 17);

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
std::span<const Control> AirControls() {
    return kAir;
}
