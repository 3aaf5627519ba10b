#include <iterator>

#include "display/routing/instrument_controls.h"
#include "display/routing/nd_controls.h"
#include "display/routing/routing.h"
#include "efb/tablet_input.h"
#include "guidance/mcp.h"
#include "module/controls/panels.h"
#include "state/requests.h"
#include "state/side.h"
#include "state/time_base.h"
#include "systems/electrical.h"
#include "systems/wheels.h"

namespace {

// It also ends the notice of missing sounds, past whose time this is.
void CancelUplink(int) {
    constexpr int kNoticeOver = 2401;
    requests.uplink_cancel = 1;
    time_base.startup_sound_msg_ticks = kNoticeOver;
}

constexpr Control kAlways[] = {
    Momentary("TZ_MCP_L_ACPT_Button", [](int) { requests.uplink_accept = 1; }),
    Momentary("TZ_MCP_L_CANC_Button", CancelUplink),
    Momentary("TZ_MCP_L_RJCT_Button", [](int) { requests.uplink_reject = 1; }),
    Momentary("TZ_MCP_Clock_L_Button", [](int) { PressElapsedTimeClock(); }),
    Momentary("TZ_MCP_Clock_R_Button", [](int) { PressElapsedTimeClock(); }),
    Rotary("TZ_MCP_L_SEL_RB_Knob", TurnMinimums),
    Momentary("ALT_INTV_knob", [](int) { PushAltitudeKnob(); }),
};
static_assert(std::size(kAlways) == 7);

constexpr Control kGlareshield[] = {
    KeptByModel(Latching("ext_power_avail", FollowExternalPower, 0)),
    Key("TZ_MCP_L_ENG_Button", [](int) { PressEngine(); }),
    Key("TZ_MCP_R_ENG_Button", [](int) { PressEngine(); }),
    Momentary("TZ_Wheel_L_HUD_Button", [](int) { ToggleHudDeclutter(); }),
    Momentary("TZ_MCP_L_FPV_Button", On<kCaptain, ToggleFlightPathVector>),
    Momentary("TZ_MCP_R_FPV_Button", On<kFirstOfficer, ToggleFlightPathVector>),
    Momentary("TZ_MCP_L_MTRS_Button", On<kCaptain, ToggleMetres>),
    Momentary("TZ_MCP_R_MTRS_Button", On<kFirstOfficer, ToggleMetres>),
    Mirrored("auto_brake_switch", nullptr, kAutobrakeRto, kAutobrakeMax),
    // another gauge turns the captain's range knob by this variable
    Momentary("tz_cpt_nd_knob_clicked", [](int clicks) { TurnRangeKnob(kCaptain, clicks > 0 ? 1 : -1); }),
    // the left button of the mouse dims, the right brightens
    Momentary("TZ_EFB_L_DSPL_Button", [](int click) { ChangeTabletBrightness(click == 2 ? 1 : -1); }),
};
// ALT_INTV_knob, also of this set, is seen in every frame already.
static_assert(std::size(kGlareshield) == 12 - 1);

}  // namespace

std::span<const Control> AlwaysPolledControls() {
    return kAlways;
}
std::span<const Control> GlareshieldControls() {
    return kGlareshield;
}
