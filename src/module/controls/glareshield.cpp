#include <algorithm>
#include <iterator>

#include "display/routing/nd_controls.h"
#include "guidance/mcp.h"
#include "module/controls/control_table.h"
#include "module/controls/panels.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/efb.h"
#include "state/electrical.h"
#include "state/instruments.h"
#include "state/nd.h"
#include "state/requests.h"
#include "state/side.h"
#include "state/time_base.h"
#include "systems/electrical.h"

namespace {

constexpr int kAutobrakeRto = -1, kAutobrakeMax = 6;
constexpr int kKnobTop = 18;
constexpr int kMostMinimums = 15000, kMinimumsStep = 10;  // ft
constexpr double kBrightnessStep = 0.1;
constexpr int kNoticeOver = 2401;  // past the time of the start-up notices

void CancelUplink(int) {
    requests.uplink_cancel = 1;
    time_base.startup_sound_msg_ticks = kNoticeOver;
}

// One elapsed-time clock: a press starts it, the next stops it, the third blanks it.
void PressClock(int) {
    int& mode = time_base.capt_mcp_clock_mode;
    mode = mode == 2 ? 0 : mode + 1;
    time_base.et_clock_running = mode == 1 ? 1 : 0;
    if (mode == 0) time_base.et_seconds = time_base.et_minutes = 0;
}

void TurnMinimums(int step) {
    int& value = instruments.minimums_value;
    value = std::clamp(std::clamp(value, 0, kMostMinimums) + step * kMinimumsStep, 0, kMostMinimums);
}

constexpr Control kAlways[] = {
    Momentary(NamedVar("TZ_MCP_L_ACPT_Button"), [](int) { requests.uplink_accept = 1; }),
    Momentary(NamedVar("TZ_MCP_L_CANC_Button"), CancelUplink),
    Momentary(NamedVar("TZ_MCP_L_RJCT_Button"), [](int) { requests.uplink_reject = 1; }),
    Momentary(NamedVar("TZ_MCP_Clock_L_Button"), PressClock),
    Momentary(NamedVar("TZ_MCP_Clock_R_Button"), PressClock),
    Rotary(NamedVar("TZ_MCP_L_SEL_RB_Knob"), &cockpit.TZ_MCP_L_SEL_RB_Knob, kKnobTop, TurnMinimums),
    Momentary(NamedVar("ALT_INTV_knob"), [](int) { PushAltitudeKnob(); }),
};
static_assert(std::size(kAlways) == 7);

void ToggleEngineKey(int) {
    displays.eicas_eng_button = displays.eicas_eng_button == 0 ? 1 : 0;
}

template <int PfdSide::*kSetting, int kSide>
void ToggleOnPfd(int) {
    int& setting = instruments.pfd[kSide - 1].*kSetting;
    setting = setting == 0 ? 1 : 0;
}

// The left button of the mouse dims, the right brightens.
void ChangeTabletBrightness(int click) {
    efb.EfbBrightness =
        std::clamp(efb.EfbBrightness + (click == 2 ? kBrightnessStep : -kBrightnessStep), 0.0, 1.0);
}

// Another gauge turns the captain's range knob by this variable.
void TurnRangeKnob(int clicks) {
    StepRange(kCaptain, clicks > 0 ? 1 : -1);
    ShowShadow(&nd[0].rng_knob);
}

constexpr Control kGlareshield[] = {
    {.variable = NamedVar("ext_power_avail"),
     .shadow = &electrical.fwd_ext_pwr_avail,
     .kind = ControlClass::kLatching,
     .follow = FollowExternalPower,
     .kept_by_model = true},
    Key(NamedVar("TZ_MCP_L_ENG_Button"), ToggleEngineKey),
    Key(NamedVar("TZ_MCP_R_ENG_Button"), ToggleEngineKey),
    Momentary(NamedVar("TZ_Wheel_L_HUD_Button"),
              [](int) { instruments.hud_declutter = instruments.hud_declutter == 0 ? 1 : 0; }),
    Momentary(NamedVar("TZ_MCP_L_FPV_Button"), ToggleOnPfd<&PfdSide::fpv_on, kCaptain>),
    Momentary(NamedVar("TZ_MCP_R_FPV_Button"), ToggleOnPfd<&PfdSide::fpv_on, kFirstOfficer>),
    Momentary(NamedVar("TZ_MCP_L_MTRS_Button"), ToggleOnPfd<&PfdSide::mtrs_on, kCaptain>),
    Momentary(NamedVar("TZ_MCP_R_MTRS_Button"), ToggleOnPfd<&PfdSide::mtrs_on, kFirstOfficer>),
    Mirrored(NamedVar("auto_brake_switch"), &cockpit.autobrake_switch, nullptr, kAutobrakeRto, kAutobrakeMax),
    Momentary(NamedVar("tz_cpt_nd_knob_clicked"), TurnRangeKnob),
    Momentary(NamedVar("TZ_EFB_L_DSPL_Button"), ChangeTabletBrightness),
};
// ALT_INTV_knob, also of this set, is seen in every frame already.
static_assert(std::size(kGlareshield) == 12 - 1);

// What the groups of the schedule don't name.
constexpr Control kOther[] = {
    Switch(NamedVar("TZ_OH_GND_TEST_Switch"), &cockpit.TZ_OH_GND_TEST_Switch, 0, 2),
    Latching(NamedVar("TZ_OH_CAB_CHM_Button"), &cockpit.TZ_OH_CAB_CHM_Button),
    Latching(NamedVar("TZ_MCP_AP_DISENGAGE_Bar"), &cockpit.TZ_MCP_AP_DISENGAGE_Bar,
             [](int) { MoveDisengageBar(cockpit.TZ_MCP_AP_DISENGAGE_Bar == 1); }),
    Mirrored(NamedVar("TZ_MCP_HDG_TRK_Status"), &cockpit.hdg_trk_mode),
    Mirrored(NamedVar("TZ_MAIN_AIRDATA_ATT_L_Switch"), &cockpit.TZ_MAIN_AIRDATA_ATT_L_Switch),
    Mirrored(NamedVar("TZ_MAIN_AIRDATA_ATT_R_Switch"), &cockpit.TZ_MAIN_AIRDATA_ATT_R_Switch),
    Switch(NamedVar("TZ_THQ_Altn_flpas_Switch"), &cockpit.TZ_THQ_Altn_flpas_Switch, 0, 2),
    Latching(NamedVar("TZ_THQ_Stab_Norm_L2"), &cockpit.TZ_THQ_Stab_Norm_L2),
    Latching(NamedVar("TZ_THQ_Stab_Norm_R2"), &cockpit.TZ_THQ_Stab_Norm_R2),
    Mirrored(NamedVar("TZ_OXYGEN_TEST_Switch01"), &cockpit.TZ_OXYGEN_TEST_Switch01),
    Mirrored(NamedVar("TZ_tcp1_FLAP_OVRD"), &cockpit.TZ_tcp1_FLAP_OVRD),
    Mirrored(NamedVar("TZ_tcp1_GEAR_OVRD"), &cockpit.TZ_tcp1_GEAR_OVRD),
    Mirrored(NamedVar("TZ_tcp1_TERR_OVRD"), &cockpit.TZ_tcp1_TERR_OVRD),
};

// Looked at by the output step, in every frame.
constexpr Control kSelector[] = {
    Switch(NamedVar("TZ_MAIN_PFD_MFD_L_Switch"), &cockpit.TZ_MAIN_PFD_MFD_L_Switch, -1, 1),
};

}  // namespace

std::span<const Control> AlwaysPolledControls() {
    return kAlways;
}
std::span<const Control> GlareshieldControls() {
    return kGlareshield;
}
std::span<const Control> OtherControls() {
    return kOther;
}
std::span<const Control> SelectorControls() {
    return kSelector;
}
