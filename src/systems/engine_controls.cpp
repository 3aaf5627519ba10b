#include "systems/engine_controls.h"

#include "frame/engine_fuel.h"
#include "platform/host.h"
#include "state/cockpit.h"
#include "state/engines.h"
#include "state/sim.h"

namespace {

const EngineFuel& FuelOf(int engine) {
    return kEngineFuel[engine == 2 ? 1 : 0];
}

}  // namespace

void ToggleFuelControl(int engine) {
    const EngineFuel& fuel = FuelOf(engine);
    if (cockpit.*fuel.control == kFuelRun) {
        if (ReadToken(fuel.starter_token) != 0) SendKeyEvent(fuel.starter_toggle, 0);
        SendKeyEvent(fuel.cut_off, 0);
        SetFuelCutOff(fuel);
    } else {
        SendKeyEvent(fuel.fuel_on, 0);
        SetFuelRun(fuel);
    }
}

void FollowFireHandle(int engine) {
    const EngineFuel& fuel = FuelOf(engine);
    const int handle = engine == 2 ? cockpit.TZ_AFT_ENG2_FIRE_HNDL : cockpit.TZ_AFT_ENG1_FIRE_HNDL;
    if (handle > 0 && ReadToken(fuel.fuel_token) != 0) SendKeyEvent(fuel.cut_off, 0);
}

void HeatPitotsWithEngines() {
    constexpr double kTurningN2 = 50;  // percent
    const int before = engines.engine_turns;
    engines.engine_turns = sim.n2_l > kTurningN2 || sim.n2_r > kTurningN2 ? 1 : 0;
    // What stands when the aircraft loads is the pilot's.
    if (before == -1 || before == engines.engine_turns) return;
    if ((sim.pitot_heat != 0) != (engines.engine_turns == 1)) SendKeyEvent(kKeyPitotHeatToggle, 0);
}

void FollowHostFuel() {
    for (const EngineFuel& fuel : kEngineFuel)
        if (cockpit.*fuel.control == kFuelCutOff && ReadToken(fuel.fuel_token) != 0) SetFuelRun(fuel);
}
