#include "systems/alerting/alert_inputs.h"

#include "base/angles.h"
#include "guidance/sequencing.h"
#include "state/alerts.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

// The heading leads away from the leg or from its fix, or it crosses between them at more than a shallow
// angle. All directions true.
bool IsHeadingOffTrack() {
    constexpr double kAbeam = 90, kShallow = 20;
    if (plan.active.stpos == kNoPlan) return false;
    const double heading = FoldBearing(sim.mag_hdg + sim.mgvar);
    const double to_fix = FoldBearing(lnav.wpt_brg + ReferenceVariation());
    const double off_course = BearingDifference(heading, lnav.course_here);
    const double off_fix = BearingDifference(heading, to_fix);
    if (off_course > kAbeam || off_fix > kAbeam) return true;
    const bool between =
        off_course > 0 && off_fix > 0 && TurnSide(heading, lnav.course_here) != TurnSide(heading, to_fix);
    return between && off_course >= kShallow;
}

}  // namespace

void ComputeAlertInputs() {
    alerts.hdg_off_track = IsHeadingOffTrack() ? 1 : 0;
}

void ArmGearWarning() {
    constexpr double kSettledSeconds = 15, kLow = 30, kHigh = 1500, kClimb = 300, kLandingFlaps = 49.5;
    if (sim.on_ground == 1) {
        if (sim.abs_time - time_base.flight_time_base > kSettledSeconds) alerts.gear_config_armed = 0;
    } else if (sim.radio_alt_ft > kHigh) {
        if (sim.flap_angle < kLandingFlaps) alerts.gear_config_armed = 2;
    } else if (sim.radio_alt_ft >= kLow && sim.vs_fpm > kClimb) {
        alerts.gear_config_armed = 1;
    }
}
