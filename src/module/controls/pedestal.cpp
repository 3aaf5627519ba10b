#include "guidance/mcp.h"
#include "module/controls/panels.h"
#include "state/cockpit.h"

namespace {

constexpr Control kPedestal[] = {
    Switch("TZ_AFT_Transponder_Knob", 0, 4),
    Switch("TZ_AFT_FD_DOOR_Switch", 0, 2),
    Latching("TZ_AFT_OBS_Audio_Switch"),
};

// What the groups of the schedule don't name.
constexpr Control kOther[] = {
    Switch("TZ_OH_GND_TEST_Switch", 0, 2),
    Latching("TZ_OH_CAB_CHM_Button"),
    Latching("TZ_MCP_AP_DISENGAGE_Bar", [](int) { MoveDisengageBar(cockpit.TZ_MCP_AP_DISENGAGE_Bar == 1); }),
    Mirrored("TZ_MCP_HDG_TRK_Status"),
    Mirrored("TZ_MAIN_AIRDATA_ATT_L_Switch"),
    Mirrored("TZ_MAIN_AIRDATA_ATT_R_Switch"),
    Switch("TZ_THQ_Altn_flpas_Switch", 0, 2),
    Latching("TZ_THQ_Stab_Norm_L2"),
    Latching("TZ_THQ_Stab_Norm_R2"),
    Mirrored("TZ_OXYGEN_TEST_Switch01"),
    Mirrored("TZ_tcp1_FLAP_OVRD"),
    Mirrored("TZ_tcp1_GEAR_OVRD"),
    Mirrored("TZ_tcp1_TERR_OVRD"),
};

// Looked at by the output step, in every frame.
constexpr Control kSelector[] = {
    Switch("TZ_MAIN_PFD_MFD_L_Switch", -1, 1),
};

}  // namespace

std::span<const Control> PedestalControls() {
    return kPedestal;
}
std::span<const Control> OtherControls() {
    return kOther;
}
std::span<const Control> SelectorControls() {
    return kSelector;
}
