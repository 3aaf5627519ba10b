#include <iterator>

#include "display/routing/instrument_controls.h"
#include "display/routing/nd_controls.h"
#include "display/routing/routing.h"
#include "guidance/mcp.h"
#include "module/controls/panels.h"
#include "state/side.h"
#include "systems/alerting/master_caution.h"
#include "systems/alerting/message_lists.h"

namespace {

using enum Content;

constexpr int kLeftHalf = 1, kRightHalf = 2;

template <int kSide, Content kContent>
void PressFormat(int) {
    PressInboardFormat(kSide, kContent);
}

template <int kSide, Content kContent>
void PressKeypadFormat(int) {
    PressLowerFormat(kSide, kContent);
}

constexpr Control kDisplays[] = {
    Switch("TZ_MCP_L_RANGE_Knob", 0, 11, On<kCaptain, FollowRangeKnob>),
    Switch("TZ_MCP_L_NDMAP_Knob", 0, 1, On<kCaptain, FollowNdKnob>),
    Momentary("TZ_MCP_L_RNG_CTR_Button", On<kCaptain, ToggleNdCentre>),
    Momentary("TZ_MCP_L_WXR_Button", On<kCaptain, PressWeatherButton>),
    Momentary("TZ_MCP_L_TERR_Button", On<kCaptain, PressTerrainButton>),
    Momentary("TZ_MCP_L_TFC_Button", On<kCaptain, PressTrafficButton>),
    Momentary("TZ_MCP_L_CANRCL_Button", [](int) { CancelRecall(); }),
    Momentary("TZ_MCP_L_WARNING_Button", [](int) { MasterWarningReset(); }),
    Key("TZ_MCP_L_MFD_L_Button", [](int) { SelectHalf(kCaptain, kLeftHalf); }),
    Key("TZ_MCP_L_MFD_R_Button", [](int) { SelectHalf(kCaptain, kRightHalf); }),
    Key("TZ_MCP_L_CDU_Button", PressFormat<kCaptain, kCdu>),
    Key("TZ_MCP_L_CHKL_Button", PressFormat<kCaptain, kChkl>),
    Key("TZ_MCP_L_COMM_Button", PressFormat<kCaptain, kComm>),
    Key("TZ_MCP_L_INFO_Button", PressFormat<kCaptain, kInfo>),
    Key("TZ_MCP_L_ND_Button", PressFormat<kCaptain, kNd>),
    Key("TZ_MCP_L_SYS_Button", PressFormat<kCaptain, kSys>),
    Key("TZ_MCP_L_EICAS_Button", [](int) { PressEicas(); }),
    Key("TZ_FMC_L_CDU_Button", PressKeypadFormat<kCaptain, kCdu>),
    Key("TZ_FMC_L_CHKL_Button", PressKeypadFormat<kCaptain, kChkl>),
    Key("TZ_FMC_L_COMM_Button", PressKeypadFormat<kCaptain, kComm>),
    Key("TZ_FMC_L_INFO_Button", PressKeypadFormat<kCaptain, kInfo>),
    Key("TZ_FMC_L_ND_Button", PressKeypadFormat<kCaptain, kNd>),
    Key("TZ_FMC_L_SYS_Button", PressKeypadFormat<kCaptain, kSys>),
    Rotary("TZ_MCP_L_BAROSET_Knob", TurnBaro),
    Momentary("TZ_MCP_L_BRST_STD_Button", [](int) { SetStandardBaro(); }),
    Knob("TZ_MCP_L_RADIO_BARO_Knob"),
    Latching("TZ_MCP_L_FD_Switch"),
    Switch("TZ_MCP_R_RANGE_Knob", 0, 11, On<kFirstOfficer, FollowRangeKnob>),
    Switch("TZ_MCP_R_NDMAP_Knob", 0, 1, On<kFirstOfficer, FollowNdKnob>),
    Momentary("TZ_MCP_R_RNG_CTR_Button", On<kFirstOfficer, ToggleNdCentre>),
    Momentary("TZ_MCP_R_WXR_Button", On<kFirstOfficer, PressWeatherButton>),
    Momentary("TZ_MCP_R_TERR_Button", On<kFirstOfficer, PressTerrainButton>),
    Momentary("TZ_MCP_R_TFC_Button", On<kFirstOfficer, PressTrafficButton>),
    Momentary("TZ_MCP_R_CANRCL_Button", [](int) { CancelRecall(); }),
    Momentary("TZ_MCP_R_WARNING_Button", [](int) { MasterWarningReset(); }),
    Key("TZ_MCP_R_MFD_L_Button", [](int) { SelectHalf(kFirstOfficer, kLeftHalf); }),
    Key("TZ_MCP_R_MFD_R_Button", [](int) { SelectHalf(kFirstOfficer, kRightHalf); }),
    Key("TZ_MCP_R_CDU_Button", PressFormat<kFirstOfficer, kCdu>),
    Key("TZ_MCP_R_CHKL_Button", PressFormat<kFirstOfficer, kChkl>),
    Key("TZ_MCP_R_COMM_Button", PressFormat<kFirstOfficer, kComm>),
    Key("TZ_MCP_R_INFO_Button", PressFormat<kFirstOfficer, kInfo>),
    Key("TZ_MCP_R_ND_Button", PressFormat<kFirstOfficer, kNd>),
    Key("TZ_MCP_R_SYS_Button", PressFormat<kFirstOfficer, kSys>),
    Key("TZ_MCP_R_EICAS_Button", [](int) { PressEicas(); }),
    Key("TZ_FMC_R_CDU_Button", PressKeypadFormat<kFirstOfficer, kCdu>),
    Key("TZ_FMC_R_CHKL_Button", PressKeypadFormat<kFirstOfficer, kChkl>),
    Key("TZ_FMC_R_COMM_Button", PressKeypadFormat<kFirstOfficer, kComm>),
    Key("TZ_FMC_R_INFO_Button", PressKeypadFormat<kFirstOfficer, kInfo>),
    Key("TZ_FMC_R_ND_Button", PressKeypadFormat<kFirstOfficer, kNd>),
    Key("TZ_FMC_R_SYS_Button", PressKeypadFormat<kFirstOfficer, kSys>),
    Rotary("TZ_MCP_R_BAROSET_Knob", TurnBaro),
    Momentary("TZ_MCP_R_BRST_STD_Button", [](int) { SetStandardBaro(); }),
    Knob("TZ_MCP_R_RADIO_BARO_Knob"),
    Latching("TZ_MCP_R_FD_Switch"),
    // one of a kind
    Momentary("TZ_MCP_L_NDMAP_Knob_PUSH", On<kCaptain, ToggleNdCentre>),
    Momentary("TZ_MCP_L_RB_RST_Button", [](int) { ResetMinimums(); }),
    Momentary("TZ_MCP_IAS_MACH_Button", [](int) { ChangeOverIasMach(); }),
    Momentary("TZ_MCP_XFR_Speed_Button", [](int) { TransferFmcSpeed(); }),
    Momentary("TZ_MAIN_SPFD_POS_Button", [](int) { ChangeStandbyBrightness(1); }),
    Momentary("TZ_MAIN_SPFD_NEG_Button", [](int) { ChangeStandbyBrightness(-1); }),
    Momentary("TZ_MAIN_SPFD_APP_Button", [](int) { ToggleStandbyApproach(); }),
    Momentary("TZ_MAIN_SPFD_HPIN_Button", [](int) { ToggleStandbyBaroUnit(); }),
};
static_assert(std::size(kDisplays) == 62);

}  // namespace

std::span<const Control> DisplayControls() {
    return kDisplays;
}
