#include "guidance/step_climb.h"

#include <algorithm>

#include "guidance/mcp.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/vnav.h"

void FlyStepClimb() {
    if (cfg.autostepclimb != 1 || vnav.step_due != 1 || vnav.vnav_engaged != 1) return;
    if (perf.fms_step_to_alt <= perf.cruise_alt || sim.apalt < perf.fms_step_to_alt) return;
    vnav.step_due = 0;
    PushAltitudeKnob();
}

void CountStepClimb() {
    if (vnav.step_climb_timer == 0) return;
    constexpr int kTold = 300;
    constexpr double kClimbed = 250, kLeft = 1000;  // ft
    const double above = sim.ind_alt_ft - vnav.step_noted_alt;
    if (above > kClimbed || above < -kLeft) {
        vnav.step_climb_timer = vnav.step_due = 0;
        vnav.step_noted_alt = 0;
        return;
    }
    vnav.step_climb_timer = std::min(vnav.step_climb_timer + 1, kTold);
}
