#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "display/routing/nd_controls.h"
#include "display/routing/routing.h"
#include "frame/key_events.h"
#include "guidance/mcp.h"
#include "module/controls/panels.h"
#include "platform/host.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/nd.h"
#include "state/requests.h"
#include "state/side.h"

namespace {

constexpr int kLeftHalf = 1, kRightHalf = 2;
constexpr int kKnobTop = 18;  // the turning knobs stand at 0 to 18
constexpr double kBrightnessStep = 0.1;

template <int kSide, Content kContent>
void PressFormat(int) {
    PressInboardFormat(kSide, kContent);
}

template <int kSide, Content kContent>
void PressKeypadFormat(int) {
    PressLowerFormat(kSide, kContent);
}

template <int kSide, int kHalf>
void PressSideButton(int) {
    SelectHalf(kSide, kHalf);
    ShowSelectLamps();
}

void PressEicasButton(int) {
    PressEicas();
    ShowSelectLamps();
}

void TurnBaro(int step) {
    SendKeyEvent(step > 0 ? kKeyBaroUp : kKeyBaroDown, 0);
}

void SetStandardBaro(int) {
    SendKeyEvent(kKeyBaroStandard, 0);
}

// An alert is taken back; else the minimums are hidden or shown again.
void ResetMinimums(int) {
    instruments.minimums_mode = instruments.minimums_mode == 0 ? 2 : 0;
}

template <int kSide>
void FollowNdKnob(int) {
    const int knob = kSide == kCaptain ? cockpit.TZ_MCP_L_NDMAP_Knob : cockpit.TZ_MCP_R_NDMAP_Knob;
    SelectNdMode(kSide, knob == 0 ? 3 : 4);
}

void ChangeStandbyBrightness(double step) {
    instruments.stby_brightness = std::clamp(instruments.stby_brightness + step, 0.0, 1.0);
}

consteval NamedVarRef Variable(std::string_view prefix, int side, std::string_view name) {
    return NamedVar(std::string(prefix) + (side == kCaptain ? "L_" : "R_") + std::string(name));
}

// What both pilots have.
template <int kSide>
consteval auto SideControls() {
    constexpr auto mcp = [](std::string_view name) consteval {
        return Variable("TZ_MCP_", kSide, name);
    };
    constexpr auto keypad = [](std::string_view name) consteval {
        return Variable("TZ_FMC_", kSide, name);
    };
    constexpr bool kLeft = kSide == kCaptain;
    return std::to_array<Control>({
        Switch(mcp("RANGE_Knob"), kLeft ? &nd[0].rng_knob : &nd[1].rng_knob, 0, 11,
               [](int) { FollowRangeKnob(kSide); }),
        Switch(mcp("NDMAP_Knob"), kLeft ? &cockpit.TZ_MCP_L_NDMAP_Knob : &cockpit.TZ_MCP_R_NDMAP_Knob, 0, 1,
               FollowNdKnob<kSide>),
        Momentary(mcp("RNG_CTR_Button"), [](int) { ToggleNdCentre(kSide); }),
        Momentary(mcp("WXR_Button"), [](int) { PressWeatherButton(kSide); }),
        Momentary(mcp("TERR_Button"), [](int) { PressTerrainButton(kSide); }),
        Momentary(mcp("TFC_Button"), [](int) { PressTrafficButton(kSide); }),
        Momentary(mcp("CANRCL_Button"), [](int) { requests.cancel_recall = 1; }),
        Momentary(mcp("WARNING_Button"), [](int) { requests.warning_reset = 1; }),
        Key(mcp("MFD_L_Button"), PressSideButton<kSide, kLeftHalf>),
        Key(mcp("MFD_R_Button"), PressSideButton<kSide, kRightHalf>),
        Key(mcp("CDU_Button"), PressFormat<kSide, Content::kCdu>),
        Key(mcp("CHKL_Button"), PressFormat<kSide, Content::kChkl>),
        Key(mcp("COMM_Button"), PressFormat<kSide, Content::kComm>),
        Key(mcp("INFO_Button"), PressFormat<kSide, Content::kInfo>),
        Key(mcp("ND_Button"), PressFormat<kSide, Content::kNd>),
        Key(mcp("SYS_Button"), PressFormat<kSide, Content::kSys>),
        Key(mcp("EICAS_Button"), PressEicasButton),
        Key(keypad("CDU_Button"), PressKeypadFormat<kSide, Content::kCdu>),
        Key(keypad("CHKL_Button"), PressKeypadFormat<kSide, Content::kChkl>),
        Key(keypad("COMM_Button"), PressKeypadFormat<kSide, Content::kComm>),
        Key(keypad("INFO_Button"), PressKeypadFormat<kSide, Content::kInfo>),
        Key(keypad("ND_Button"), PressKeypadFormat<kSide, Content::kNd>),
        Key(keypad("SYS_Button"), PressKeypadFormat<kSide, Content::kSys>),
        Rotary(mcp("BAROSET_Knob"), kLeft ? &cockpit.TZ_MCP_L_BAROSET_Knob : &cockpit.TZ_MCP_R_BAROSET_Knob,
               kKnobTop, TurnBaro),
        Momentary(mcp("BRST_STD_Button"), SetStandardBaro),
        Knob(mcp("RADIO_BARO_Knob"), &instruments.minimums_baro),
        Latching(mcp("FD_Switch"), kLeft ? &cockpit.capt_fd_switch : &cockpit.fo_fd_switch),
    });
}

constexpr auto kOneOfAKind = std::to_array<Control>({
    Momentary(NamedVar("TZ_MCP_L_NDMAP_Knob_PUSH"), [](int) { ToggleNdCentre(kCaptain); }),
    Momentary(NamedVar("TZ_MCP_L_RB_RST_Button"), ResetMinimums),
    Momentary(NamedVar("TZ_MCP_IAS_MACH_Button"), [](int) { ChangeOverIasMach(); }),
    Momentary(NamedVar("TZ_MCP_XFR_Speed_Button"), [](int) { TransferFmcSpeed(); }),
    Momentary(NamedVar("TZ_MAIN_SPFD_POS_Button"), [](int) { ChangeStandbyBrightness(kBrightnessStep); }),
    Momentary(NamedVar("TZ_MAIN_SPFD_NEG_Button"), [](int) { ChangeStandbyBrightness(-kBrightnessStep); }),
    Momentary(NamedVar("TZ_MAIN_SPFD_APP_Button"),
              [](int) { instruments.stby_app_mode = instruments.stby_app_mode == 0 ? 2 : 0; }),
    Momentary(NamedVar("TZ_MAIN_SPFD_HPIN_Button"),
              [](int) { instruments.stby_baro_in = instruments.stby_baro_in == 1 ? 0 : 1; }),
});

constexpr auto kDisplays = JoinTables(SideControls<kCaptain>(), SideControls<kFirstOfficer>(), kOneOfAKind);
static_assert(kDisplays.size() == 62);

}  // namespace

std::span<const Control> DisplayControls() {
    return kDisplays;
}
