#include "frame/key_hook.h"

#include "frame/controls.h"
#include "frame/cues.h"
#include "frame/engine_fuel.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "platform/state_lock.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/host_link.h"

namespace {

constexpr const EngineFuel& kEngine1 = kEngineFuel[0];
constexpr const EngineFuel& kEngine2 = kEngineFuel[1];

void FollowCutOff(const EngineFuel& engine) {
    if (cockpit.*engine.control == kFuelRun) SetFuelCutOff(engine);
    if (ReadToken(engine.starter_token) != 0) SendKeyEvent(engine.starter_toggle, 0);
    RequestCue(kCueKeyClick);
}

void FollowFuelOn(const EngineFuel& engine) {
    if (cockpit.*engine.control == kFuelCutOff) SetFuelRun(engine);
    RequestCue(kCueFuelOn);
}

void FollowAutopilotMaster() {
    if (autoflight.ap_master_l == 1 || autoflight.ap_master_r == 1) {
        WriteNamedVar(NamedVar("ap_master_disconnect"), 1);
    } else if (cfg.DiscPFCOnAPDisc == 1) {
        cfg.PfcSwitch = kPfcNormal;
        SetControl(&cockpit.TZ_OH_PFC_G_Switch, 0);
    }
}

// The host drops its autothrottle arm with this event: it is armed anew, once for a run of such events.
void FollowToGa() {
    const bool rearm = cfg.RealismMode == 1 && ReadToken(kTokenAutothrottleArm) == 1;
    if (rearm && host_link.toga_rearmed == 0) SendKeyEvent(kKeyAutothrottleRearm, 0);
    host_link.toga_rearmed = rearm && host_link.toga_rearmed == 0 ? 1 : 0;
}

}  // namespace

void OnKeyEvent(int event, int /*value*/) {
    const StateLock lock;
    switch (event) {
        case kKeyEngineAutoStart:
            cockpit.autostart_pending = 1;
            break;
        case kKeyEng1CutOff:
            FollowCutOff(kEngine1);
            break;
        case kKeyEng2CutOff:
            FollowCutOff(kEngine2);
            break;
        case kKeyEnginesCutOff:
            FollowCutOff(kEngine1);
            FollowCutOff(kEngine2);
            break;
        case kKeyEng1FuelOn:
            FollowFuelOn(kEngine1);
            break;
        case kKeyEng2FuelOn:
            FollowFuelOn(kEngine2);
            break;
        case kKeyEnginesFuelOn:
            FollowFuelOn(kEngine1);
            FollowFuelOn(kEngine2);
            break;
        case kKeyAutopilotMaster:
            FollowAutopilotMaster();
            break;
        case kKeyParkingBrake:
            if (ReadToken(kTokenParkingBrake) > 32000) RequestCue(kCueParkBrake);
            break;
        case kKeyAutothrottleToGa:
            FollowToGa();
            break;
        default:
            break;
    }
}

void AddKeyEventHook() {
    if (host_link.key_hook_added == 1) return;
    Host().add_key_hook(OnKeyEvent);
    host_link.key_hook_added = 1;
}

void RemoveKeyEventHook() {
    if (host_link.key_hook_added == 0) return;
    Host().remove_key_hook(OnKeyEvent);
    host_link.key_hook_added = 0;
}
