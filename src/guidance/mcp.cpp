#include "guidance/mcp.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/angles.h"
#include "base/numbers.h"
#include "fmc/legs/path.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/delete_restrictions.h"
#include "fmc/route/execute_route.h"
#include "frame/controls.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "guidance/autothrottle.h"
#include "platform/host.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "state/vnav.h"

namespace {

struct Button {
    std::string_view name;
    NamedVarRef request;
    int value;
    int tick_phase;                          // set behind the press, so that the next pass comes soon
    int event = 0;                           // keeps the host's own autopilot in step; 0 = none
    int ConfigState::*event_when = nullptr;  // sent only with this setting at 1
};

constexpr NamedVarRef kLateral = NamedVar("ap_lat_mode_clicked");
constexpr NamedVarRef kVertical = NamedVar("ap_vert_mode_clicked");
constexpr NamedVarRef kThrust = NamedVar("at_mode_clicked");
constexpr NamedVarRef kAutopilot = NamedVar("TZ_MCP_L_AP_Button");

constexpr Button kButtons[] = {
    {"lnav", kLateral, kLatLnav, 10},
    {"hdgsel", kLateral, kLatHdgSel, 15, kKeyHeadingHold, &ConfigState::LnavDefAp},
    {"hdghold", kLateral, kLatHdgHold, 15, kKeyHeadingHold, &ConfigState::LnavDefAp},
    {"loc", kLateral, kLatLoc, 15},
    {"vnav", kVertical, kVertVnavSpd, 15},
    {"flch", kVertical, kVertFlch, 15},
    {"vs", kVertical, kVertVs, 15},
    {"althold", kVertical, kVertAlt, 15, kKeyAltitudeHold, &ConfigState::LnavDefAp},
    {"app", kVertical, kVertGs, 15, kKeyApproachHold, &ConfigState::LnavDefAp},
    {"at", kThrust, 1, 10, kKeyAutothrottleMode, &ConfigState::RealismMode},
    {"clbcon", kThrust, kThrottleThrRef, 10},
    {"apl", kAutopilot, 1, 15, kKeyAutopilotMaster, &ConfigState::RealismMode},
    {"apr", kAutopilot, 1, 15, kKeyAutopilotMaster, &ConfigState::RealismMode},
};

struct Knob {
    std::string_view name;
    int event;
    double SimSnapshot::*shown;
    int step;
    double low, high;
};

constexpr Knob kKnobs[] = {
    {"spd", kKeySpeedSet, &SimSnapshot::ap_spdbug, 1, 100, 399},
    {"alt", kKeyAltitudeSet, &SimSnapshot::apalt, 100, 0, 50000},
};

// The host carries events out on a later tick; the window moves at once, so that quick turns add up.
void TurnHeading(int detents) {
    const bool engaged = autoflight.ap_master_l != 0 || autoflight.ap_master_r != 0;
    if (engaged && autoflight.ap_lat_mode == kLatLnav) return;
    sim.ap_hdgbug = FoldBearing(sim.ap_hdgbug + detents);
    SendKeyEvent(kKeyHeadingSet, WholeNumber(std::round(sim.ap_hdgbug)) % 360);
}

void TurnVerticalSpeedWheel(int detents) {
    constexpr double kLowest = -8000, kHighest = 6000;
    if (detents > 0 ? sim.ap_vsbug >= kHighest : sim.ap_vsbug <= kLowest) return;
    for (int i = std::abs(detents); i > 0; --i)
        SendKeyEvent(detents > 0 ? kKeyVerticalSpeedUp : kKeyVerticalSpeedDown, 0);
}

}  // namespace

bool PressMcpButton(std::string_view name) {
    if (name == "atarm") {
        SwitchAutothrottleArms();
        return true;
    }
    const auto button = std::find_if(std::begin(kButtons), std::end(kButtons),
                                     [&](const Button& row) { return row.name == name; });
    if (button == std::end(kButtons)) return false;
    int value = button->value;
    if (name == "lnav") {
        if (WholeNumber(ReadNamedVar(kLateral)) == kLatLnav) value = 0;
        if (cfg.LnavDefAp == 1) lnav.lnav_engaged = lnav.lnav_engaged == 1 ? 0 : 1;
    }
    WriteNamedVar(button->request, value);
    if (button->event != 0 && cfg.*button->event_when == 1) SendKeyEvent(button->event, 0);
    time_base.tick_phase = button->tick_phase;
    return true;
}

bool TurnMcpKnob(std::string_view name, int detents) {
    if (detents == 0) return name == "hdg" || name == "vswheel" || name == "spd" || name == "alt";
    if (name == "hdg") {
        TurnHeading(detents);
        return true;
    }
    if (name == "vswheel") {
        TurnVerticalSpeedWheel(detents);
        return true;
    }
    for (const Knob& knob : kKnobs) {
        if (knob.name != name) continue;
        double& shown = sim.*knob.shown;
        shown = std::clamp(shown + detents * knob.step, knob.low, knob.high);
        SendKeyEvent(knob.event, WholeNumber(std::round(shown)));
        return true;
    }
    return false;
}

void MoveDisengageBar(bool down) {
    SetControl(&cockpit.TZ_MCP_AP_DISENGAGE_Bar, down ? 1 : 0);
    if (!down) {
        WriteNamedVar(NamedVar("TZ_AP_DISENGAGE_Switch_Right"), 1);
        return;
    }
    WriteNamedVar(NamedVar("ap_master_disconnect"), 1);
    if (cfg.DiscPFCOnAPDisc != 1) return;
    cfg.PfcSwitch = kPfcDisconnected;
    SetControl(&cockpit.TZ_OH_PFC_G_Switch, 1);
}

void PushAltitudeKnob() {
    if (vnav.toc == 0) return DeleteClimbRestrictions(true);
    if (vnav.tod == 1) return DeleteDescentRestrictions(true);
    if (vnav.vnav_engaged != 1 || !IsRouteActive() || sim.apalt <= perf.cruise_alt) return;
    plan.mod.entries.cruise_alt = sim.apalt;
    if (IsRouteSettled()) AdvanceRouteState();
    ExecuteRoute();
}

void ChangeOverIasMach() {
    cockpit.mach_selected = cockpit.mach_selected == 0 ? 1 : 0;
    WriteNamedVar(NamedVar("tz_mach_status"), cockpit.mach_selected);
}

void TransferFmcSpeed() {
    constexpr double kLowest = 100, kHighest = 399;  // of the speed window
    if (vnav.vnav_ias < kLowest) return;
    sim.ap_spdbug = std::min(std::round(vnav.vnav_ias), kHighest);
    SendKeyEvent(kKeySpeedSet, WholeNumber(sim.ap_spdbug));
}
