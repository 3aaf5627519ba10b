#include <iterator>

#include "efb/tablet_input.h"
#include "module/controls/panels.h"
#include "state/efb.h"
#include "state/side.h"

namespace {

template <int kSide, EfbKey kKey>
void Press(int) {
    PressTabletKey(kSide, kKey);
}

// The first officer's tablet has no arrows and no zoom.
constexpr Control kTablets[] = {
    Key("TZ_EFB_L_L1_Button", Press<kCaptain, kEfbL1>),
    Key("TZ_EFB_L_L2_Button", Press<kCaptain, kEfbL2>),
    Key("TZ_EFB_L_L3_Button", Press<kCaptain, kEfbL3>),
    Key("TZ_EFB_L_L4_Button", Press<kCaptain, kEfbL4>),
    Key("TZ_EFB_L_L5_Button", Press<kCaptain, kEfbL5>),
    Key("TZ_EFB_L_L6_Button", Press<kCaptain, kEfbL6>),
    Key("TZ_EFB_L_L7_Button", Press<kCaptain, kEfbL7>),
    Key("TZ_EFB_L_L8_Button", Press<kCaptain, kEfbL8>),
    Key("TZ_EFB_L_R1_Button", Press<kCaptain, kEfbR1>),
    Key("TZ_EFB_L_R2_Button", Press<kCaptain, kEfbR2>),
    Key("TZ_EFB_L_R3_Button", Press<kCaptain, kEfbR3>),
    Key("TZ_EFB_L_R4_Button", Press<kCaptain, kEfbR4>),
    Key("TZ_EFB_L_R5_Button", Press<kCaptain, kEfbR5>),
    Key("TZ_EFB_L_R6_Button", Press<kCaptain, kEfbR6>),
    Key("TZ_EFB_L_R7_Button", Press<kCaptain, kEfbR7>),
    Key("TZ_EFB_L_R8_Button", Press<kCaptain, kEfbR8>),
    Key("TZ_EFB_L_MENU_Button", Press<kCaptain, kEfbMenu>),
    Key("TZ_EFB_L_PGUP_Button", Press<kCaptain, kEfbPageUp>),
    Key("TZ_EFB_L_PGDN_Button", Press<kCaptain, kEfbPageDown>),
    Key("TZ_EFB_L_PWR_Button", Press<kCaptain, kEfbPower>),
    Key("TZ_EFB_L_XFR_Button", Press<kCaptain, kEfbTransfer>),
    Key("TZ_EFB_L_REDIRECT_Button", Press<kCaptain, kEfbRedirect>),
    Key("TZ_EFB_L_UP_Button", Press<kCaptain, kEfbUp>),
    Key("TZ_EFB_L_DN_Button", Press<kCaptain, kEfbDown>),
    Key("TZ_EFB_L_LFT_Button", Press<kCaptain, kEfbLeft>),
    Key("TZ_EFB_L_RGT_Button", Press<kCaptain, kEfbRight>),
    Key("TZ_EFB_L_ZOOMIN_Button", Press<kCaptain, kEfbZoomIn>),
    Key("TZ_EFB_L_ZOOMOUT_Button", Press<kCaptain, kEfbZoomOut>),
    Key("TZ_EFB_R_L1_Button", Press<kFirstOfficer, kEfbL1>),
    Key("TZ_EFB_R_L2_Button", Press<kFirstOfficer, kEfbL2>),
    Key("TZ_EFB_R_L3_Button", Press<kFirstOfficer, kEfbL3>),
    Key("TZ_EFB_R_L4_Button", Press<kFirstOfficer, kEfbL4>),
    Key("TZ_EFB_R_L5_Button", Press<kFirstOfficer, kEfbL5>),
    Key("TZ_EFB_R_L6_Button", Press<kFirstOfficer, kEfbL6>),
    Key("TZ_EFB_R_L7_Button", Press<kFirstOfficer, kEfbL7>),
    Key("TZ_EFB_R_L8_Button", Press<kFirstOfficer, kEfbL8>),
    Key("TZ_EFB_R_R1_Button", Press<kFirstOfficer, kEfbR1>),
    Key("TZ_EFB_R_R2_Button", Press<kFirstOfficer, kEfbR2>),
    Key("TZ_EFB_R_R3_Button", Press<kFirstOfficer, kEfbR3>),
    Key("TZ_EFB_R_R4_Button", Press<kFirstOfficer, kEfbR4>),
    Key("TZ_EFB_R_R5_Button", Press<kFirstOfficer, kEfbR5>),
    Key("TZ_EFB_R_R6_Button", Press<kFirstOfficer, kEfbR6>),
    Key("TZ_EFB_R_R7_Button", Press<kFirstOfficer, kEfbR7>),
    Key("TZ_EFB_R_R8_Button", Press<kFirstOfficer, kEfbR8>),
    Key("TZ_EFB_R_MENU_Button", Press<kFirstOfficer, kEfbMenu>),
    Key("TZ_EFB_R_PGUP_Button", Press<kFirstOfficer, kEfbPageUp>),
    Key("TZ_EFB_R_PGDN_Button", Press<kFirstOfficer, kEfbPageDown>),
    Key("TZ_EFB_R_PWR_Button", Press<kFirstOfficer, kEfbPower>),
    Key("TZ_EFB_R_XFR_Button", Press<kFirstOfficer, kEfbTransfer>),
    Key("TZ_EFB_R_REDIRECT_Button", Press<kFirstOfficer, kEfbRedirect>),
};
static_assert(std::size(kTablets) == 50);

}  // namespace

std::span<const Control> TabletControls() {
    return kTablets;
}
