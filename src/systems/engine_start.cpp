#include "systems/engine_start.h"

#include <algorithm>

#include "frame/controls.h"
#include "frame/cues.h"
#include "frame/engine_fuel.h"
#include "platform/host.h"
#include "state/cockpit.h"
#include "state/engines.h"
#include "state/identity.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

constexpr int kSelectorStart = 0, kSelectorNorm = 1;
// percent N2
constexpr double kMayStartBelow = 10, kStandsBelow = 5;
constexpr double kTrentCutout = 52, kOtherCutout = 62;
// percent corrected N2
constexpr double kStarterDoneFrom = 25, kStartDoneFrom = 60;
constexpr double kAutoFuelFrom = 21, kAutoStartDone = 30;
// seconds
constexpr int kLightOffSeconds = 30, kPressureSeconds = 7;

struct StartingEngine {
    const EngineFuel& fuel;
    int CockpitState::*selector;
    double SimSnapshot::*n2;
    double SimSnapshot::*corrected_n2;
    int EngineState::*lightoff_timer;
};
constexpr StartingEngine kStartingEngineRows[] = {
    {kEngineFuel[0], &CockpitState::TZ_OH_ENG_L_START_Switch, &SimSnapshot::n2_l,
     &SimSnapshot::corrected_n2_l, &EngineState::eng1_lightoff_timer},
    {kEngineFuel[1], &CockpitState::TZ_OH_ENG_R_START_Switch, &SimSnapshot::n2_r,
     &SimSnapshot::corrected_n2_r, &EngineState::eng2_lightoff_timer},
};

void ToggleStarter(const StartingEngine& engine) {
    SendKeyEvent(engine.fuel.starter_toggle, 0);
}

bool IsStarterOn(const StartingEngine& engine) {
    return ReadToken(engine.fuel.starter_token) != 0;
}

// A start that is broken off by hand ends its phase: alerts are held back while one lasts.
void BreakOffStart(const StartingEngine& engine) {
    if (IsStarterOn(engine)) ToggleStarter(engine);
    int& phase = engines.*engine.fuel.start_phase;
    if (phase == kStarterRuns) phase = kNoStart;
}

void BeginEngineStart(const StartingEngine& engine) {
    if (sim.*engine.n2 < kMayStartBelow && IsAcBusPowered()) {
        engines.*engine.fuel.start_phase = kStarterRuns;
        if (!IsStarterOn(engine)) ToggleStarter(engine);
    }
    const bool both_stand = sim.n2_l < kStandsBelow && sim.n2_r < kStandsBelow;
    if (!both_stand || (electrical.apu_gen_pwr == 0 && electrical.ext_ac_pwr == 0)) return;
    if (engines.start_pressure_timer == 0) sound.starting_engs_cue = kStartingEngines;
    engines.start_pressure_timer = kPressureSeconds;
}

void StepStartPhase(const StartingEngine& engine) {
    int& phase = engines.*engine.fuel.start_phase;
    const double speed = sim.*engine.corrected_n2;
    if (phase == kStarterRuns && speed >= kStarterDoneFrom) {
        phase = kStarterDone;
        ToggleStarter(engine);
    }
    if (phase == kStarterDone && speed >= kStartDoneFrom) phase = kNoStart;
}

void LightOff(const StartingEngine& engine) {
    int& latch = cockpit.*engine.fuel.start_latch;
    if (latch != 1 || cockpit.*engine.fuel.control != kFuelRun) return;
    if (!(sim.*engine.corrected_n2 >= engines.eng_starter_cutout)) return;
    engines.*engine.lightoff_timer = kLightOffSeconds;
    latch = 0;
}

void FeedAutoStart(const StartingEngine& engine) {
    const double speed = sim.*engine.corrected_n2;
    if (cockpit.*engine.fuel.control != kFuelCutOff || !(speed >= kAutoFuelFrom && speed < kStarterDoneFrom))
        return;
    SendKeyEvent(engine.fuel.fuel_on, 0);
    SetFuelRun(engine.fuel);
}

}  // namespace

void FollowStartSelector(int engine) {
    const StartingEngine& row = kStartingEngineRows[engine == 2 ? 1 : 0];
    if (cockpit.*row.selector == kSelectorStart)
        BeginEngineStart(row);
    else
        BreakOffStart(row);
}

void StepEngineStart() {
    for (const StartingEngine& engine : kStartingEngineRows) StepStartPhase(engine);
}

void StepLightOff() {
    for (const StartingEngine& engine : kStartingEngineRows) LightOff(engine);
    if (cockpit.autostart_pending == 0) return;
    for (const StartingEngine& engine : kStartingEngineRows) FeedAutoStart(engine);
    if (sim.corrected_n2_l > kAutoStartDone && sim.corrected_n2_r > kAutoStartDone)
        cockpit.autostart_pending = 0;
}

void CountStartTimers() {
    for (int* timer :
         {&engines.eng1_lightoff_timer, &engines.eng2_lightoff_timer, &engines.start_pressure_timer})
        if (*timer > 0) --*timer;
}

void ReturnStartSelectors() {
    engines.eng_starter_cutout = identity.engine_model == "TRENT 1000" ? kTrentCutout : kOtherCutout;
    for (const StartingEngine& engine : kStartingEngineRows) {
        int& selector = cockpit.*engine.selector;
        if (selector != kSelectorStart || !(sim.*engine.n2 >= engines.eng_starter_cutout)) continue;
        SetControl(&selector, kSelectorNorm);
        RequestCue(kCueSwitch);
    }
}
