#include "module/remote_input.h"

#include <algorithm>
#include <iterator>

#include "cdu/unit/items.h"
#include "efb/tablet_input.h"
#include "efb/words/face.h"
#include "frame/named_variables.h"
#include "module/controls/operate.h"
#include "platform/panel_gauges.h"
#include "state/cfg.h"
#include "state/remote.h"
#include "state/side.h"
#include "state/sound.h"

namespace {

constexpr int kCaptainCdu = 0, kFirstOfficerCdu = 1, kTablet = 2;
constexpr int kKey = 0, kTouch = 2;
constexpr int kLowerUnit = 5;

// Every code is a key of the cockpit, known by its named variable.
struct CduKey {
    int code;
    NamedVarRef captain, first_officer;
};

// Codes in order from 1; 19 is no key.
constexpr CduKey kCduKeys[] = {
    {1, NamedVar("TZ_FMC_L_CDU_Button"), NamedVar("TZ_FMC_R_CDU_Button")},
    {2, NamedVar("TZ_FMC_L_CHKL_Button"), NamedVar("TZ_FMC_R_CHKL_Button")},
    {3, NamedVar("TZ_FMC_L_COMM_Button"), NamedVar("TZ_FMC_R_COMM_Button")},
    {4, NamedVar("TZ_FMC_L_INFO_Button"), NamedVar("TZ_FMC_R_INFO_Button")},
    {5, NamedVar("TZ_FMC_L_ND_Button"), NamedVar("TZ_FMC_R_ND_Button")},
    {6, NamedVar("TZ_FMC_L_SYS_Button"), NamedVar("TZ_FMC_R_SYS_Button")},
    {7, NamedVar("TZ_FMC_L_1_Button"), NamedVar("TZ_FMC_R_1_Button")},
    {8, NamedVar("TZ_FMC_L_2_Button"), NamedVar("TZ_FMC_R_2_Button")},
    {9, NamedVar("TZ_FMC_L_3_Button"), NamedVar("TZ_FMC_R_3_Button")},
    {10, NamedVar("TZ_FMC_L_4_Button"), NamedVar("TZ_FMC_R_4_Button")},
    {11, NamedVar("TZ_FMC_L_5_Button"), NamedVar("TZ_FMC_R_5_Button")},
    {12, NamedVar("TZ_FMC_L_6_Button"), NamedVar("TZ_FMC_R_6_Button")},
    {13, NamedVar("TZ_FMC_L_7_Button"), NamedVar("TZ_FMC_R_7_Button")},
    {14, NamedVar("TZ_FMC_L_8_Button"), NamedVar("TZ_FMC_R_8_Button")},
    {15, NamedVar("TZ_FMC_L_9_Button"), NamedVar("TZ_FMC_R_9_Button")},
    {16, NamedVar("TZ_FMC_L_DEC_Button"), NamedVar("TZ_FMC_R_DEC_Button")},
    {17, NamedVar("TZ_FMC_L_0_Button"), NamedVar("TZ_FMC_R_0_Button")},
    {18, NamedVar("TZ_FMC_L_NEGPOS_Button"), NamedVar("TZ_FMC_R_NEGPOS_Button")},
    {20, NamedVar("TZ_FMC_L_A_Button"), NamedVar("TZ_FMC_R_A_Button")},
    {21, NamedVar("TZ_FMC_L_B_Button"), NamedVar("TZ_FMC_R_B_Button")},
    {22, NamedVar("TZ_FMC_L_C_Button"), NamedVar("TZ_FMC_R_C_Button")},
    {23, NamedVar("TZ_FMC_L_D_Button"), NamedVar("TZ_FMC_R_D_Button")},
    {24, NamedVar("TZ_FMC_L_E_Button"), NamedVar("TZ_FMC_R_E_Button")},
    {25, NamedVar("TZ_FMC_L_F_Button"), NamedVar("TZ_FMC_R_F_Button")},
    {26, NamedVar("TZ_FMC_L_G_Button"), NamedVar("TZ_FMC_R_G_Button")},
    {27, NamedVar("TZ_FMC_L_H_Button"), NamedVar("TZ_FMC_R_H_Button")},
    {28, NamedVar("TZ_FMC_L_I_Button"), NamedVar("TZ_FMC_R_I_Button")},
    {29, NamedVar("TZ_FMC_L_J_Button"), NamedVar("TZ_FMC_R_J_Button")},
    {30, NamedVar("TZ_FMC_L_K_Button"), NamedVar("TZ_FMC_R_K_Button")},
    {31, NamedVar("TZ_FMC_L_L_Button"), NamedVar("TZ_FMC_R_L_Button")},
    {32, NamedVar("TZ_FMC_L_M_Button"), NamedVar("TZ_FMC_R_M_Button")},
    {33, NamedVar("TZ_FMC_L_N_Button"), NamedVar("TZ_FMC_R_N_Button")},
    {34, NamedVar("TZ_FMC_L_O_Button"), NamedVar("TZ_FMC_R_O_Button")},
    {35, NamedVar("TZ_FMC_L_P_Button"), NamedVar("TZ_FMC_R_P_Button")},
    {36, NamedVar("TZ_FMC_L_Q_Button"), NamedVar("TZ_FMC_R_Q_Button")},
    {37, NamedVar("TZ_FMC_L_R_Button"), NamedVar("TZ_FMC_R_R_Button")},
    {38, NamedVar("TZ_FMC_L_S_Button"), NamedVar("TZ_FMC_R_S_Button")},
    {39, NamedVar("TZ_FMC_L_T_Button"), NamedVar("TZ_FMC_R_T_Button")},
    {40, NamedVar("TZ_FMC_L_U_Button"), NamedVar("TZ_FMC_R_U_Button")},
    {41, NamedVar("TZ_FMC_L_V_Button"), NamedVar("TZ_FMC_R_V_Button")},
    {42, NamedVar("TZ_FMC_L_W_Button"), NamedVar("TZ_FMC_R_W_Button")},
    {43, NamedVar("TZ_FMC_L_X_Button"), NamedVar("TZ_FMC_R_X_Button")},
    {44, NamedVar("TZ_FMC_L_Y_Button"), NamedVar("TZ_FMC_R_Y_Button")},
    {45, NamedVar("TZ_FMC_L_Z_Button"), NamedVar("TZ_FMC_R_Z_Button")},
    {46, NamedVar("TZ_FMC_L_SP_Button"), NamedVar("TZ_FMC_R_SP_Button")},
    {47, NamedVar("TZ_FMC_L_DEL_Button"), NamedVar("TZ_FMC_R_DEL_Button")},
    {48, NamedVar("TZ_FMC_L_SLASH_Button"), NamedVar("TZ_FMC_R_SLASH_Button")},
    {49, NamedVar("TZ_FMC_L_CLR_Button"), NamedVar("TZ_FMC_R_CLR_Button")},
    {50, NamedVar("TZ_FMC_L_PRVPG_Button"), NamedVar("TZ_FMC_R_PRVPG_Button")},
    {51, NamedVar("TZ_FMC_L_NXTPG_Button"), NamedVar("TZ_FMC_R_NXTPG_Button")},
    {52, NamedVar("TZ_FMC_L_EXEC_Button"), NamedVar("TZ_FMC_R_EXEC_Button")},
};
static_assert(std::size(kCduKeys) == 51);

struct TabletKey {
    int code;
    NamedVarRef key;
    bool silent = false;
    bool right = false;  // pressed with the right button of the mouse
};
constexpr bool kSilent = true, kRight = true;

constexpr TabletKey kTabletKeys[] = {
    {0x35, NamedVar("TZ_EFB_L_MENU_Button"), kSilent},
    {0x36, NamedVar("TZ_EFB_L_REDIRECT_Button")},
    {0x37, NamedVar("TZ_EFB_L_UP_Button"), kSilent},
    {0x38, NamedVar("TZ_EFB_L_DN_Button"), kSilent},
    {0x39, NamedVar("TZ_EFB_L_PGUP_Button")},
    {0x3a, NamedVar("TZ_EFB_L_PGDN_Button")},
    {0x3b, NamedVar("TZ_EFB_L_XFR_Button"), kSilent},
    {0x3c, NamedVar("TZ_EFB_L_PWR_Button"), false, kRight},
    {0x3d, NamedVar("TZ_EFB_L_DSPL_Button"), kSilent},
    {0x3e, NamedVar("TZ_EFB_L_L1_Button")},
    {0x3f, NamedVar("TZ_EFB_L_L2_Button")},
    {0x40, NamedVar("TZ_EFB_L_L3_Button")},
    {0x41, NamedVar("TZ_EFB_L_L4_Button")},
    {0x42, NamedVar("TZ_EFB_L_L5_Button")},
    {0x43, NamedVar("TZ_EFB_L_L6_Button")},
    {0x44, NamedVar("TZ_EFB_L_L7_Button")},
    {0x45, NamedVar("TZ_EFB_L_L8_Button")},
    {0x46, NamedVar("TZ_EFB_L_R1_Button")},
    {0x47, NamedVar("TZ_EFB_L_R2_Button")},
    {0x48, NamedVar("TZ_EFB_L_R3_Button")},
    {0x49, NamedVar("TZ_EFB_L_R4_Button")},
    {0x4a, NamedVar("TZ_EFB_L_R5_Button")},
    {0x4b, NamedVar("TZ_EFB_L_R6_Button")},
    {0x4c, NamedVar("TZ_EFB_L_R7_Button")},
    {0x4d, NamedVar("TZ_EFB_L_R8_Button")},
    {0x4e, NamedVar("TZ_EFB_L_ZOOMIN_Button")},
    {0x4f, NamedVar("TZ_EFB_L_ZOOMOUT_Button")},
    {0x50, NamedVar("TZ_EFB_L_UP_Button")},
    {0x51, NamedVar("TZ_EFB_L_DN_Button")},
    {0x52, NamedVar("TZ_EFB_L_LFT_Button")},
    {0x53, NamedVar("TZ_EFB_L_RGT_Button")},
};

void PressCduCode(int device, int code) {
    const auto* key = std::ranges::find(kCduKeys, code, &CduKey::code);
    if (key == std::end(kCduKeys)) return;
    ClickControl(device == kCaptainCdu ? key->captain : key->first_officer, kMouseLeftSingle);
}

void PressTabletCode(int code) {
    const auto* key = std::ranges::find(kTabletKeys, code, &TabletKey::code);
    if (key == std::end(kTabletKeys)) return;
    const int cue = sound.event_cue;
    ClickControl(key->key, key->right ? kMouseRightSingle : kMouseLeftSingle);
    if (key->silent) sound.event_cue = cue;
    remote.efb.due = 1;
}

// A peer's point in the frame of what it touches.
struct FramePoint {
    double x, y;
};
FramePoint InFrame(const RemoteEvent& at, const RemoteImage& image, double width, double height) {
    return {at.x * width / std::max(image.width, 1), at.y * height / std::max(image.height, 1)};
}

void Touch(const RemoteEvent& event) {
    const RemoteImage& image = event.device == kTablet ? remote.efb : remote.cdu;
    if (event.x <= 0 || event.y <= 0 || event.x >= image.width || event.y >= image.height) return;
    if (event.device == kTablet) {
        const FramePoint at = InFrame(event, image, kTabletWidth, kTabletHeight);
        OnEfbTouch(static_cast<int>(at.x), static_cast<int>(at.y), kCaptain, kMouseLeftSingle);
        remote.efb.due = 1;
    } else {
        const FramePoint at = InFrame(event, image, 564, 424);
        OnCduClick(at.x, at.y, kLowerUnit);
    }
}

}  // namespace

void HandleRemoteEvent(const RemoteEvent& event) {
    if (event.device < kCaptainCdu || event.device > kTablet) return;
    if (event.kind == kKey && event.device == kTablet) PressTabletCode(event.code);
    if (event.kind == kKey && event.device != kTablet) PressCduCode(event.device, event.code);
    if (event.kind == kTouch) Touch(event);
    if (event.device != kTablet) remote.cdu.due = 1;
}

void PollRemoteInput() {
    RemoteEvent event;
    if (cfg.RemoteCdu == 1 && PollRemoteEvent(event)) HandleRemoteEvent(event);
}
