#include "guidance/decision_height.h"

#include "frame/key_events.h"
#include "platform/host.h"
#include "state/instruments.h"
#include "state/sim.h"

void SetDecisionHeight() {
    constexpr double kStartHeight = 200;
    if (instruments.dh_set == 1) return;
    if (sim.dh_host == kStartHeight)
        instruments.dh_set = 1;
    else
        SendKeyEvent(sim.dh_host < kStartHeight ? kKeyDecisionHeightUp : kKeyDecisionHeightDown, 0);
}
