#include "guidance/autoflight.h"

#include "base/numbers.h"
#include "frame/controls.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "guidance/autothrottle.h"
#include "guidance/lnav.h"
#include "guidance/vnav_speed.h"
#include "platform/host.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kModeBoxTicks = 180;
constexpr double kNoValue = 999;
// of ap_master_disconnect
constexpr int kDisconnect = 1, kWarningDisconnect = 2;

int ReadInt(NamedVarRef variable) {
    return WholeNumber(ReadNamedVar(variable));
}

// A mode that is new and none of the empty ones is boxed for ten seconds.
void TakeMode(NamedVarRef variable, int& mode, int& timer) {
    const int reported = ReadInt(variable);
    if (reported != mode && reported > 0) timer = kModeBoxTicks;
    mode = reported;
}

// While the speed is protected the director's pitch command isn't to be followed.
void TakeEnvelopeProtection() {
    const int protects = ReadInt(NamedVar("ap_envelope_prot"));
    if (protects != autoflight.ap_envelope_prot) autoflight.fd_pitch_bar_off = protects != 0 ? 1 : 0;
    autoflight.ap_envelope_prot = protects;
}

void ReadAutopilots() {
    const bool was_engaged = IsAutopilotEngaged();
    autoflight.ap_master_l = ReadInt(NamedVar("ap_master_l")) | ReadInt(NamedVar("tz_ap_master_l"));
    autoflight.ap_master_r = ReadInt(NamedVar("ap_master_r")) | ReadInt(NamedVar("tz_ap_master_r"));
    if (!IsAutopilotEngaged())
        autoflight.ap_status_timer = 0;
    else if (!was_engaged)
        autoflight.ap_status_timer = kModeBoxTicks;
}

// The needles of a final that the route leads to are AutoflightLogic's.
void ReadFinalByRoute() {
    const int by_route = ReadInt(NamedVar("tz_fmc_ian_appr"));
    if (by_route != autoflight.ian_approach) autoflight.fac_approach = autoflight.ian_approach = by_route;
    if (by_route == 0) return;
    autoflight.fac_lat_needle = ReadNamedVar(NamedVar("tz_ian_fac_needle"));
    autoflight.gp_needle = ReadNamedVar(NamedVar("tz_ian_gp_needle"));
}

// LNAV keeps off behind the end of the plan although the mode still stands.
void FollowEngagedModes() {
    const bool lnav_mode = autoflight.ap_lat_mode == kLatLnav || autoflight.ap_lat_mode_armed == kLatLnav;
    if (lnav_mode && lnav.plan_finished == 0)
        lnav.lnav_engaged = 1;
    else if (!lnav_mode && cfg.LnavDefAp == 0)
        lnav.lnav_engaged = 0;
    vnav.vnav_engaged = autoflight.ap_vert_mode == kVertVnavSpd || autoflight.ap_vert_mode == kVertVnavPth;
}

void ShowMasterWarning(int lit) {
    SetControl(&cockpit.TZ_MCP_Annun_WARN, lit);
    SetControl(&cockpit.TZ_MCP_AnnunR_WARN, lit);
}

void SetDisconnectWarning(int warning) {
    autoflight.ap_disc_warning = warning;
    autoflight.ap_disc_lamp = warning;
    ShowMasterWarning(warning);
}

void StepDisconnect() {
    const NamedVarRef request = NamedVar("ap_master_disconnect");
    autoflight.ap_master_disconnect = ReadInt(request);
    const auto acknowledge = [&] {
        autoflight.ap_master_disconnect = 0;
        WriteNamedVar(request, 0);
    };
    if (autoflight.ap_master_disconnect == kWarningDisconnect) {
        SetDisconnectWarning(1);
        autoflight.ap_disc_latch = 1;
        acknowledge();
    }
    if (autoflight.ap_master_disconnect == kDisconnect && autoflight.ap_disc_warning == 1) {
        SetDisconnectWarning(0);
        acknowledge();
    }
    if (autoflight.ap_disc_latch == 1 && IsAutopilotEngaged()) {
        autoflight.ap_disc_latch = 0;
        autoflight.ap_disc_lamp = 0;
        ShowMasterWarning(0);
        if (cfg.DiscATOnAPDisc == 1) {
            SetControl(&cockpit.TZ_OH_PFC_Safety_Switch, 1);
            SetControl(&cockpit.TZ_OH_PFC_G_Switch, 1);
            cfg.PfcSwitch = kPfcNormal;
        }
    }
    if (autoflight.ap_master_disconnect == kDisconnect && autoflight.ap_disc_latch == 0 &&
        IsAutopilotEngaged()) {
        autoflight.ap_disc_warning = 0;
        if (cfg.DiscATOnAPDisc == 1) DisarmAutothrottle();
    }
    if (autoflight.ap_master_l != 0) autoflight.ap_disc_warning = 0;
    if (autoflight.ap_disc_warning == 0 && autoflight.ap_disc_lamp == 1) SetDisconnectWarning(0);
}

double VnavSpeed() {
    if (IsHoldPatternFlown()) return lnav.hold_speed;
    return IsTargetMach() ? vnav.vnav_mach : vnav.vnav_ias;
}

double VnavPathAngle() {
    if (plan.active.stpos == kNoPlan || vnav.toc == 0) return kNoValue;
    return vnav.tod == 1 ? cfg.DescFpa : 0;
}

double LnavHeading() {
    if (!IsRouteActive() || plan.active.stpos == kNoPlan) return kNoValue;
    return IsHoldPatternFlown() ? lnav.hold_hdg : lnav.fms_hdg;
}

}  // namespace

void ReadAutoflightModes() {
    ReadAutopilots();
    TakeMode(NamedVar("ap_lat_mode"), autoflight.ap_lat_mode, autoflight.fma_roll_timer);
    TakeMode(NamedVar("ap_vert_mode"), autoflight.ap_vert_mode, autoflight.fma_pitch_timer);
    TakeMode(NamedVar("at_mode"), autoflight.at_mode, autoflight.fma_at_timer);
    autoflight.ap_lat_mode_armed = ReadInt(NamedVar("ap_lat_mode_armed"));
    autoflight.ap_vert_mode_armed = ReadInt(NamedVar("ap_vert_mode_armed"));
    autoflight.at_mode_armed = ReadInt(NamedVar("at_mode_armed"));
    autoflight.at_armed_left = ReadInt(NamedVar("at_armed_left"));
    autoflight.at_armed_right = ReadInt(NamedVar("at_armed_right"));
    autoflight.fd_roll_cmd = ReadNamedVar(NamedVar("TZ_FD_Bank"));
    autoflight.fd_pitch_cmd = ReadNamedVar(NamedVar("TZ_FD_Pitch"));
    TakeEnvelopeProtection();
    autoflight.spd_intv_active = ReadInt(NamedVar("tz_spd_intv_active"));
    ReadFinalByRoute();
    FollowEngagedModes();
    StepDisconnect();
}

void PublishGuidance() {
    WriteNamedVar(NamedVar("lnav_hdg"), LnavHeading());
    WriteNamedVar(NamedVar("tz_fpln_next_wpt_angle"), lnav.turn_code);
    if (plan.active.stpos != kNoPlan) {
        WriteNamedVar(NamedVar("xtk_err_dist"), lnav.xtk);
        WriteNamedVar(NamedVar("xtk_err_dir"), lnav.xtk_side);
    }
    WriteNamedVar(NamedVar("vnav_spd"), VnavSpeed());
    WriteNamedVar(NamedVar("vnav_fpa"), VnavPathAngle());
    WriteNamedVar(NamedVar("vnav_vert_dev"), vnav.vnav_vert_dev);
    WriteNamedVar(NamedVar("fms_cross_at_elev"), vnav.cross_at_elev);
}

void AgreeFlightDirector() {
    const bool wanted = cockpit.capt_fd_switch == 1 || cockpit.fo_fd_switch == 1;
    if (wanted != (sim.fd_active != 0)) SendKeyEvent(kKeyFlightDirectorToggle, 0);
}

void StepAutoflightTimers() {
    for (int* timer : {&autoflight.ap_status_timer, &autoflight.fma_roll_timer, &autoflight.fma_pitch_timer,
                       &autoflight.fma_at_timer})
        if (*timer > 0) --*timer;
}
