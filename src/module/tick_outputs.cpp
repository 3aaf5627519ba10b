#include "module/tick_outputs.h"

#include <algorithm>
#include <numeric>

#include "base/numbers.h"
#include "display/routing/routing.h"
#include "fmc/performance/winds.h"
#include "frame/active_runways.h"
#include "frame/named_variables.h"
#include "guidance/autoflight.h"
#include "module/model_settings.h"
#include "module/remote_input.h"
#include "navdata/geodesy.h"
#include "platform/host.h"
#include "sound/environment.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/leg_words.h"
#include "state/module_life.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "systems/systems.h"

namespace {

void UpdateSpeedTrend() {
    AutoflightState& a = autoflight;
    sim.airspeed_smooth = ReadNamedVar(NamedVar("airspeed_smooth"));
    a.spd_ring[static_cast<std::size_t>(time_base.tick_phase)] = sim.airspeed_smooth;
    const double mean =
        std::accumulate(a.spd_ring.begin(), a.spd_ring.end(), 0.0) / static_cast<double>(a.spd_ring.size());
    const double smooth = (mean + a.spd_mean) / 2;
    const double change = smooth - a.spd_mean;
    a.spd_mean = smooth;
    a.spd_lookahead = sim.airspeed_smooth + 60 * change;
    a.spd_trend = (smooth + 180 * change + a.spd_trend) / 2;
}

// The runways of the air traffic at the nearer end of the route.
void RefreshActiveRunways() {
    if (cfg.DispAiActiveRwys != 1 || !IsRouteActive()) return;
    const AirportData& origin = airports.origin_airport;
    const AirportData& dest = airports.dest_airport;
    const auto distance = [](const AirportData& airport) {
        return GreatCircle(sim.plane_lat, sim.plane_lon, airport.lat, airport.lon).dist;
    };
    const AirportData& nearer = distance(dest) < distance(origin) ? dest : origin;
    if (!nearer.ident.empty()) module_life.ai_runways = QueryActiveRunways(nearer.ident);
}

void PublishFmcValues() {
    WriteNamedVar(NamedVar("tz_accel_ht"), cfg.AccelHt);
    WriteNamedVar(NamedVar("tz_thrust_reduction_ht"), cfg.ThrustReductionHt);
    WriteNamedVar(NamedVar("tz_fpln_active"), plan.fms_fpln_active);
    WriteNamedVar(NamedVar("tz_dest_dist"), perf.dist_to_dest);
    WriteNamedVar(NamedVar("tz_dest_elev"), airports.dest_airport.elevation_ft);
    WriteNamedVar(NamedVar("tz_v1"), perf.v1);
    WriteNamedVar(NamedVar("tz_V1"), perf.v1);
    WriteNamedVar(NamedVar("tz_vr"), perf.vr);
    WriteNamedVar(NamedVar("tz_VR"), perf.vr);
    WriteNamedVar(NamedVar("tz_vref"), perf.vref);
    WriteNamedVar(NamedVar("tz_VREF"), perf.vref);
    WriteNamedVar(NamedVar("tz_to_flaps"), perf.to_flaps);
    WriteNamedVar(NamedVar("tz_landing_flaps"), perf.ldg_flaps);
}

void SystemsEvery3s() {
    sim.ground_elev_m = GroundElevation(sim.plane_lat, sim.plane_lon);
    RefreshActiveRunways();
    PublishFmcValues();
    PublishModelSettings();
}

void StepSecond(int phase) {
    if (phase == 0) {
        StepEnvironmentTimers();
        StepWindUplink();
        SystemsSecond(1);
        if (IsPoweredBeyondBattery()) RepairInboardModes(cockpit.TZ_MAIN_PFD_MFD_L_Switch);
    }
    if (phase == 5) SystemsSecond(2);
    if (phase == 11) SystemsSecond(3);
}

void UpdateExecLamps() {
    cockpit.autobrake_switch = WholeNumber(ReadNamedVar(NamedVar("auto_brake_switch")));
    const int lit = AwaitsExec() ? 1 : 0;
    WriteNamedVar(NamedVar("TZ_FMC_EXEC_L_Annun"), lit);
    WriteNamedVar(NamedVar("TZ_FMC_EXEC_R_Annun"), lit);
}

// The captain's selector is acted on where it is seen to have moved.
void TakeDisplaySelector() {
    constexpr NamedVarRef kSelector = NamedVar("TZ_MAIN_PFD_MFD_L_Switch");
    const double shown = ReadNamedVar(kSelector);
    const int position = std::clamp(WholeNumber(shown), -1, 1);
    if (shown != position) WriteNamedVar(kSelector, position);
    if (position == displays.du_sel_pos) return;
    cockpit.TZ_MAIN_PFD_MFD_L_Switch = position;
    MoveDisplaySelector(position);
    ShowSelectLamps();
}

struct ModelValue {
    NamedVarRef variable;
    double SimSnapshot::*value;
};
constexpr ModelValue kModelValues[] = {
    {NamedVar("TZ_Eng1_TPR"), &SimSnapshot::eng1_tpr},
    {NamedVar("TZ_Eng2_TPR"), &SimSnapshot::eng2_tpr},
    {NamedVar("TZ_V_S"), &SimSnapshot::v_s_kt},
    {NamedVar("TZ_V_A"), &SimSnapshot::v_a_kt},
    {NamedVar("TZ_V_MO"), &SimSnapshot::v_mo_kt},
    {NamedVar("vnav_spd"), &SimSnapshot::vnav_spd_readback},
    {NamedVar("tz_cabin_alt"), &SimSnapshot::cabin_alt},
    {NamedVar("tz_cabin_dp"), &SimSnapshot::cabin_dp},
    {NamedVar("tz_cabin_rate"), &SimSnapshot::cabin_rate},
    {NamedVar("tz_cabin_fwd_ofv"), &SimSnapshot::cabin_fwd_ofv},
    {NamedVar("tz_cabin_aft_ofv"), &SimSnapshot::cabin_aft_ofv},
};

void ReadModelValues() {
    for (const ModelValue& row : kModelValues) sim.*row.value = ReadNamedVar(row.variable);
    sim.low_speed_limit = (sim.v_a_kt - sim.v_s_kt) * 0.7 + sim.v_s_kt;
}

}  // namespace

void TickOutputs(bool ticked) {
    const int phase = time_base.tick_phase;
    // In pause the phases stand still: what they select then comes once in a second's frames, not in each.
    const bool due = ticked || time_base.frame_phase == 0;
    PollRemoteInput();
    MarkRemoteImages(ticked ? phase : time_base.frame_phase);
    SystemsTick();
    PublishGuidance();
    ReadAutoflightModes();
    UpdateSpeedTrend();
    if (due && time_base.tick3s_phase == 22) SystemsEvery3s();
    if (due && time_base.tick2s_phase == 0 && cfg.VASdisplay == 1)
        sim.free_address_gb = Host().free_address_space();
    if (due) StepSecond(phase);
    TakeDisplaySelector();
    if (phase == 0 || phase == 9) UpdateExecLamps();
    if (time_base.frame_phase % 2 == 0) ReadModelValues();
}
