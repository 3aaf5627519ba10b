#include "display/pfd/pfd_memory.h"

#include <algorithm>
#include <cmath>

#include "display/pfd/flight_director.h"
#include "display/pfd/pfd_view.h"
#include "display/pfd/speed_marks.h"
#include "frame/named_variables.h"
#include "state/autoflight.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/leg_words.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/time_base.h"
#include "state/vnav.h"
#include "systems/flap_detents.h"

namespace {

constexpr int kBoxTicks = 180;

// A box stands for ten seconds around what has just appeared.
void StepBox(bool shown, int& was_shown, int& timer) {
    if (!shown)
        timer = 0;
    else if (was_shown == 0)
        timer = kBoxTicks;
    else if (timer > 0)
        --timer;
    was_shown = shown ? 1 : 0;
}

void StepBoxes() {
    InstrumentState& i = instruments;
    StepBox(sim.mach >= kLowestMachShown, i.mach_shown, i.mach_box_timer);
    const bool director = cockpit.capt_fd_switch == 1 || cockpit.fo_fd_switch == 1;
    StepBox(!IsAutopilotEngaged() && director && IsIrsOn(), i.fd_status_shown, i.fd_status_timer);
}

// 2 degrees a second.
void StepDirectorPitch() {
    constexpr double kMostStep = 0.11;
    const bool shown = IsDirectorShown(kCaptain) || IsDirectorShown(kFirstOfficer);
    const double error = DirectorPitchError();
    if (!shown || !std::isfinite(error)) return;
    double& smooth = instruments.fd_pitch_smooth;
    smooth += std::clamp(error - smooth, -kMostStep, kMostStep);
}

void KeepBaroPreset() {
    if (!IsBaroStandard() && sim.baro_in > 0) instruments.baro_preset = sim.baro_in;
}

void StepSpeedSources() {
    InstrumentState& i = instruments;
    i.flap_detent = FlapDetent();
    i.flap_bug_phase = vnav.tod == 1 ? kApproachBugs : kClimbBugs;
    i.fmc_speed_active = vnav.vnav_engaged == 1 && autoflight.spd_intv_active == 0 ? 1 : 0;
}

// A rotation speed alone serves as decision speed too. V2 has done its work once the flaps are in.
void StepTakeoffSpeeds(bool touched_down) {
    TakeoffApproachState& speeds = takeoff_approach;
    if (IsPfdLit() && speeds.vr >= 1 && speeds.v1 == 0) speeds.v1 = speeds.vr;
    if (touched_down)
        instruments.vspeed_bugs_removed = 0;
    else if (sim.on_ground == 0 && sim.flap_pos == 0)
        instruments.vspeed_bugs_removed = 1;
}

double HeightAgainstMinimums() {
    return instruments.minimums_baro == 1 ? sim.ind_alt_ft : sim.radio_alt_ft;
}

// Runs for some ticks from the moment that a height sinks through a limit.
void StepCrossing(bool above, int& was_above, int& timer, int ticks) {
    if (was_above == 1 && !above)
        timer = ticks;
    else if (timer > 0)
        --timer;
    was_above = above ? 1 : 0;
}

void StepRadioAltitudeBox() {
    constexpr double kBoxedFrom = 2500;  // ft
    constexpr int kMinimumsTicks = 36;
    InstrumentState& i = instruments;
    StepCrossing(sim.ind_alt_ft > kBoxedFrom, i.hud_above_2500, i.ra_2500_timer, kBoxTicks);
    StepCrossing(HeightAgainstMinimums() > i.minimums_value, i.hud_above_minimums, i.minimums_cross_timer,
                 kMinimumsTicks);
}

// The minimums alert when the aircraft sinks through them, until it has landed or climbs away.
void StepMinimumsAlert(bool touched_down) {
    InstrumentState& i = instruments;
    const bool above = HeightAgainstMinimums() > i.minimums_value;
    const bool sank = i.minimums_above == 1 && !above && sim.on_ground == 0;
    const bool climbed = i.minimums_above == 0 && above;
    if (i.minimums_mode == kMinimumsShown && sank)
        i.minimums_mode = kMinimumsAlert;
    else if (i.minimums_mode == kMinimumsAlert && (climbed || touched_down))
        i.minimums_mode = kMinimumsShown;
    i.minimums_above = above ? 1 : 0;
}

void CheckLandingAltitude() {
    const bool manual = ReadNamedVar(NamedVar("tz_oh_ldg_alt_mode")) == 1;
    instruments.ldg_alt_flag = manual || !IsRouteActive() ? 1 : 0;
}

}  // namespace

void StepPfdMemory() {
    const bool touched_down = instruments.pfd_on_ground == 0 && sim.on_ground == 1;
    instruments.pfd_on_ground = sim.on_ground;
    StepBoxes();
    StepDirectorPitch();
    KeepBaroPreset();
    StepSpeedSources();
    StepTakeoffSpeeds(touched_down);
    StepMinimumsAlert(touched_down);
    StepRadioAltitudeBox();
    if (time_base.tick_phase == 0) CheckLandingAltitude();
}
