#include "sound/environment.h"

#include "frame/cues.h"

namespace {

struct Timer {
    int SoundState::*seconds;
    void (*run_out)();
};
constexpr Timer kTimers[] = {
    {&SoundState::env_battery_timer, [] { StopLoop(kLoopBattery); }},
    {&SoundState::env_quiet_start_timer, [] { RequestCue(kCueFansStart); }},
    {&SoundState::env_quiet_timer, [] { RequestLoop(kLoopQuiet); }},
    {&SoundState::env_loud_timer, [] { RequestLoop(kLoopLoud); }},
};

}  // namespace

void StepEnvironmentTimers() {
    for (const Timer& timer : kTimers) {
        int& seconds = sound.*timer.seconds;
        if (seconds > 0 && --seconds == 0) timer.run_out();
    }
}
