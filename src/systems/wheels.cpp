#include "systems/wheels.h"

#include "base/numbers.h"
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
    cockpit.autobrake_switch = WholeNumber(ReadNamedVar(NamedVar("auto_brake_switch")));
}
