#include "guidance/pause_points.h"

#include "frame/key_events.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/pause_points.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

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

}  // namespace

void ActAtTopOfDescent() {
    if (vnav.tod == 0) {
        pause_points.tod_pause_done = pause_points.tod_rate_done = 0;
        return;
    }
    if (cfg.PauseAtTod == 1) PauseOnce(pause_points.tod_pause_done);
    if (cfg.OneXAtTod == 1) ReturnToNormalRate(pause_points.tod_rate_done);
}

void ActNearDestination() {
    // A distance of 0 is one that isn't known yet.
    const bool near =
        IsRouteActive() && predictions.dist_to_dest > 0 && predictions.dist_to_dest < cfg.PauseAtDistFromDest;
    if (!near) {
        pause_points.dest_pause_done = pause_points.dest_rate_done = 0;
        return;
    }
    PauseOnce(pause_points.dest_pause_done);
    ReturnToNormalRate(pause_points.dest_rate_done);
}
