#include "systems/flight_computers.h"

#include "state/cfg.h"
#include "state/cockpit.h"

void FollowPfcSwitch(int) {
    constexpr int kDisconnected = 4, kNormal = 7;
    cfg.pfc_switch_off = cockpit.TZ_OH_PFC_G_Switch == 0 ? 0 : 1;
    cfg.PfcSwitch = cfg.pfc_switch_off == 1 ? kDisconnected : kNormal;
}
