#include "panels/save_panel.h"

#include <utility>

#include "base/text.h"
#include "frame/crew_messages.h"
#include "panels/panel_folder.h"
#include "panels/panel_keys.h"
#include "panels/panel_legs.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/host_link.h"
#include "state/identity.h"
#include "state/leg_words.h"
#include "state/panel_files.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"

namespace {

constexpr int kHelpPanelSaved = 26;

std::string NameOfToday() {
    const int date = Host().machine_date();  // YYYYMMDD
    const int year = date / 10000;
    const int short_year = year < 2000 ? year - 1900 : year - 2000;
    const RouteEnds& ends = plan.active.ends;
    const bool no_route = ends.origin == kNotSelected && ends.dest == kNotSelected;
    return (no_route ? "SavPnl" : ends.origin + ends.dest) +
           Format("_%02d%02d%02d", short_year, date / 100 % 100, date % 100);
}

// Until the route is active, what the pages show is the working copy.
void AppendLegs(std::string& text) {
    const bool active = IsRouteActive();
    const RouteVersion& version = active ? plan.active : plan.mod;
    if (active ? version.stpos == kNoPlan : version.legs[0].ident.empty()) return;
    for (int i = 0; i <= version.leg_cnt; ++i) text += "FPLN=" + PanelLegText(version.legs[i]) + '\n';
}

std::string PanelOfNow() {
    const RouteVersion& version = IsRouteActive() ? plan.active : plan.mod;
    std::string text = "[FLTSIM]\naircraft=" + identity.aircraft + '\n';
    text += Format("lat=%.6f\nlon=%.6f\n", sim.plane_lat, sim.plane_lon);
    text += Format("alt=%.0f\nhdg=%03.0f\n", sim.ind_alt_ft, sim.mag_hdg);
    for (const PanelKey& key : PanelKeys()) {
        if (!key.section.empty()) {
            text += "\n[" + std::string(key.section) + "]\n";
            continue;
        }
        if (key.use == PanelKeyUse::kOnlyRead) continue;
        if (key.name == "bod_pos") text += Format("fp_cnt=%d\n", version.leg_cnt);
        text += std::string(key.name) + '=' + PanelText(key) + '\n';
        if (key.name == "get_pax_flag") AppendLegs(text);
    }
    return text;
}

}  // namespace

void SavePanelState(std::string_view name, int side, int mode) {
    if (mode == kAutosave) {
        Host().save_flight("TZ900 Autosave", "TZ900 Autosave", "TZ900 Flight AutoPanel Save");
        return;
    }
    const std::string file = PanelFileName(name.empty() ? NameOfToday() : name);
    if (WritePanelFile(file, PanelOfNow()) && mode == kCrewSave)
        PostCduMessage(file, kFileStored, kHelpPanelSaved, side);
}

void StepPanelAutosave() {
    constexpr int kInterval = 30, kFlightEnding = 8;
    if (!IsRouteSettled() || flight_log.fplog_mode >= kFlightEnding || cfg.PanelAutoSaveEnroute != 1) return;
    if (panel_files.autosave_secs < kInterval) {
        ++panel_files.autosave_secs;
        return;
    }
    panel_files.autosave_secs = 0;
    SavePanelState({}, kCaptain, kAutosave);
}

std::string PanelOfFlight(std::string_view flight_file) {
    constexpr std::string_view kEnding = ".FXML";
    std::string name = UpperCase(flight_file.substr(flight_file.find_last_of("\\/") + 1));
    if (name.ends_with(kEnding)) name.resize(name.size() - kEnding.size());
    return name + "-FLT";
}

void FollowFlightSaves() {
    if (host_link.saved_flight.empty()) return;
    const std::string panel = PanelOfFlight(std::exchange(host_link.saved_flight, {}));
    // The simulator's own, which nobody asked for.
    if (panel == "PROGRAM GENERATED TEMPORARY SCENARIO-FLT" ||
        panel == "PROGRAM GENERATED TEMPORARY FLIGHT.FLT-FLT")
        return;
    if (cfg.SavePanelStateonFlightSave == 1) SavePanelState(panel, kCaptain, kWithFlightSave);
}
