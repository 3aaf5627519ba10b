#include "frame/time_base.h"

#include <algorithm>

#include "state/cfg.h"
#include "state/time_base.h"

namespace {

constexpr int kMaxStartupTicks = 2500;

int NextPhase(int phase, int last) {
    return phase < 0 || phase >= last ? 0 : phase + 1;
}

}  // namespace

bool HasTicked() {
    return time_base.tick18 != time_base.last_tick18;
}

void StepTimeBase() {
    TimeBase& t = time_base;
    t.last_tick18 = t.tick18;
    if (cfg.LogWptTurnData == 1) ++t.wpt_log_ticks;
    if (t.startup_msg_ticks < kMaxStartupTicks) ++t.startup_msg_ticks;
    if (t.startup_sound_msg_ticks < kMaxStartupTicks) ++t.startup_sound_msg_ticks;
    t.tick_phase = NextPhase(t.tick_phase, 17);
    t.tick2s_phase = NextPhase(t.tick2s_phase, 35);
    t.tick3s_phase = NextPhase(t.tick3s_phase - 1, 53) + 1;
}

void StepFramePhase() {
    time_base.frame_phase = NextPhase(time_base.frame_phase, 17);
    time_base.tick_phase = std::clamp(time_base.tick_phase, 0, 17);  // tables are indexed by it
}
