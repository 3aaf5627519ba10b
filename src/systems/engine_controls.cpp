#include "systems/engine_controls.h"

#include "frame/key_events.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cockpit.h"

namespace {

constexpr int kRun = 1, kCutOff = 2;

struct EngineControls {
    int CockpitState::*fuel_control;
    int CockpitState::*start_latch;
    int CockpitState::*fire_handle;
    int starter_token, starter_toggle;
    int fuel_token, fuel_on, cut_off;
};
constexpr EngineControls kEngines[] = {
    {&CockpitState::eng1_thrott, &CockpitState::eng1_start_latch, &CockpitState::TZ_AFT_ENG1_FIRE_HNDL,
     kTokenEng1Starter, kKeyEng1StarterToggle, kTokenEng1Combustion, kKeyEng1FuelOn, kKeyEng1CutOff},
    {&CockpitState::eng2_thrott, &CockpitState::eng2_start_latch, &CockpitState::TZ_AFT_ENG2_FIRE_HNDL,
     kTokenEng2Starter, kKeyEng2StarterToggle, kTokenEng2Combustion, kKeyEng2FuelOn, kKeyEng2CutOff},
};

const EngineControls& ControlsOf(int engine) {
    return kEngines[engine == 2 ? 1 : 0];
}

}  // namespace

void ToggleFuelControl(int engine) {
    const EngineControls& row = ControlsOf(engine);
    if (cockpit.*row.fuel_control == kRun) {
        if (ReadToken(row.starter_token) != 0) SendKeyEvent(row.starter_toggle, 0);
        SendKeyEvent(row.cut_off, 0);
        cockpit.*row.fuel_control = kCutOff;
    } else {
        SendKeyEvent(row.fuel_on, 0);
        cockpit.*row.start_latch = 1;
        cockpit.*row.fuel_control = kRun;
    }
}

void FollowFireHandle(int engine) {
    const EngineControls& row = ControlsOf(engine);
    if (cockpit.*row.fire_handle > 0 && ReadToken(row.fuel_token) != 0) SendKeyEvent(row.cut_off, 0);
}
