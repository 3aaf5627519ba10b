#include "module/main_update.h"

#include "fmc/performance/flight_log.h"
#include "frame/aircraft.h"
#include "frame/key_events.h"
#include "frame/snapshot.h"
#include "frame/tokens.h"
#include "guidance/autoflight.h"
#include "guidance/lnav.h"
#include "navdata/nearest.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/module_life.h"
#include "state/nav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "state/vnav.h"

namespace {

constexpr int kMaxStartupTicks = 2500;
constexpr int kNearestPhase = 6;

void StepCounters() {
    TimeBase& t = time_base;
    t.last_tick18 = t.tick18;
    if (cfg.LogWptTurnData == 1) ++t.wpt_log_ticks;
    if (t.startup_msg_ticks < kMaxStartupTicks) ++t.startup_msg_ticks;
    if (t.startup_sound_msg_ticks < kMaxStartupTicks) ++t.startup_sound_msg_ticks;
    t.tick_phase = t.tick_phase >= 17 ? 0 : t.tick_phase + 1;
    t.tick2s_phase = t.tick2s_phase >= 35 ? 0 : t.tick2s_phase + 1;
    t.tick3s_phase = (t.tick3s_phase > 53 ? 0 : t.tick3s_phase) + 1;
    if (t.tick2s_phase == 0) UpdateWeights();
}

// In realism mode the host's autothrottle, once disarmed, is disarmed for good.
void FollowAutothrottleArm() {
    const int armed = ReadToken(kTokenAutothrottleArm) != 0 ? 1 : 0;
    if (cfg.RealismMode == 1 && sim.host_at_armed == 1 && armed == 0) SendKeyEvent(kKeyAutothrottleDisarm, 0);
    sim.host_at_armed = armed;
}

void PauseOnce(int& done) {
    if (done == 1) return;
    done = 1;
    if (sim.host_paused == 0) SendKeyEvent(kKeyPause, 0);
}

// One step of the rate a tick, until it is 1.
void ReturnToNormalRate(int& done) {
    if (done == 1) return;
    if (sim.sim_rate == 1.0)
        done = 1;
    else
        SendKeyEvent(sim.sim_rate < 1 ? kKeySimRateUp : kKeySimRateDown, 0);
}

void ActAtTopOfDescent() {
    if (vnav.tod == 0) {
        module_life.tod_pause_done = module_life.tod_rate_done = 0;
        return;
    }
    if (cfg.PauseAtTod == 1) PauseOnce(module_life.tod_pause_done);
    if (cfg.OneXAtTod == 1) ReturnToNormalRate(module_life.tod_rate_done);
}

void ActNearDestination() {
    // A distance of 0 is one that isn't known yet.
    const bool near = IsRouteActive() && perf.dist_to_dest > 0 && perf.dist_to_dest < cfg.PauseAtDistFromDest;
    if (!near) {
        module_life.dest_pause_done = module_life.dest_rate_done = 0;
        return;
    }
    PauseOnce(module_life.dest_pause_done);
    ReturnToNormalRate(module_life.dest_rate_done);
}

// The host knows the decision height only by steps: they go on until it reads 200.
void SetDecisionHeight() {
    constexpr double kStartHeight = 200;
    if (module_life.dh_set == 1) return;
    if (sim.dh_host == kStartHeight)
        module_life.dh_set = 1;
    else
        SendKeyEvent(sim.dh_host < kStartHeight ? kKeyDecisionHeightUp : kKeyDecisionHeightDown, 0);
}

}  // namespace

void MainUpdate() {
    ReadMotion();
    if (time_base.tick18 == time_base.last_tick18) return;
    StepCounters();
    ReadSnapshot();
    StepFlightClock();
    ReadRestOfSnapshot();
    if (time_base.tick_phase == 0) ReadSlowValues();
    if (time_base.tick_phase == kNearestPhase || nav.nearest_refresh_due == 1) RefreshNearest();
    LnavUpdate();
    ReadTailValues();
    FollowAutothrottleArm();
    StepAutoflightTimers();
    ReadSimRate();
    ActAtTopOfDescent();
    ActNearDestination();
    FlightLogStep(false);
    SetDecisionHeight();
}
