#include "systems/wheels.h"

#include <algorithm>

#include "frame/controls.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "platform/host.h"
#include "state/cockpit.h"
#include "state/sim.h"

void CheckGearLever() {
    if (sim.on_ground == 0 || ReadNamedVar(NamedVar("gearleverpos")) <= 0) return;
    WriteNamedVar(NamedVar("gearleverpos"), 0);
    SendKeyEvent(kKeyGearDown, 0);
}

void ReadAutobrake() {
    TakeControlFromModel(&cockpit.autobrake_switch);
}

void TurnAutobrake(int steps) {
    const int now = std::clamp(cockpit.autobrake_switch, kAutobrakeRto, kAutobrakeMax);
    SetControl(&cockpit.autobrake_switch, std::clamp(now + steps, kAutobrakeRto, kAutobrakeMax));
}
