#include "systems/flight_computers.h"

#include "state/cfg.h"
#include "state/cockpit.h"

void FollowPfcSwitch(int) {
    cfg.PfcSwitch = cockpit.TZ_OH_PFC_G_Switch == 0 ? kPfcNormal : kPfcDisconnected;
}
