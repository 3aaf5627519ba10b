#include "guidance/autothrottle.h"

#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/sim.h"

namespace {

void SetArms(int armed) {
    autoflight.at_armed_left = autoflight.at_armed_right = armed;
    WriteNamedVar(NamedVar("at_armed_left"), armed);
    WriteNamedVar(NamedVar("at_armed_right"), armed);
}

}  // namespace

void SwitchAutothrottleArms() {
    if (cfg.RealismMode != 1 || cfg.LnavDefAp != 1) return SetArms(autoflight.at_armed_left == 1 ? 0 : 1);
    SetArms(ReadToken(kTokenAutothrottleArmed) != 0 ? 1 : 0);
    SendKeyEvent(kKeyAutothrottleArm, 0);
}

void DisarmAutothrottle() {
    SetArms(0);
}

void FollowAutothrottleArm() {
    const int armed = ReadToken(kTokenAutothrottleArm) != 0 ? 1 : 0;
    if (cfg.RealismMode == 1 && sim.host_at_armed == 1 && armed == 0) SendKeyEvent(kKeyAutothrottleDisarm, 0);
    sim.host_at_armed = armed;
}
