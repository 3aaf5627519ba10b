#include "panels/load_panel.h"

#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "fmc/files/loaded_route.h"
#include "fmc/legs/active_leg.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "frame/crew_messages.h"
#include "navdata/from_aircraft.h"
#include "panels/panel_folder.h"
#include "panels/panel_keys.h"
#include "panels/panel_legs.h"
#include "panels/save_panel.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/host_link.h"
#include "state/identity.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"

namespace {

constexpr int kHelpPanelLoaded = 28, kHelpPanelFailed = 29, kHelpOtherModel = 30, kHelpOtherPlace = 31;
constexpr std::string_view kLastSaved = "LastSavedPanelState.pnl";

struct StoredValue {
    const PanelKey* key;
    std::string_view text;
};

/// What a file holds, in its order.
struct Panel {
    bool aircraft_ok = false, position_ok = false;
    double lat = 0, lon = 0;
    std::vector<StoredValue> values = {};
    std::vector<FlightPlanLeg> legs = {};
};

void CheckPosition(Panel& panel) {
    constexpr double kNear = 2.0;  // nm
    if (panel.lat == 0 || panel.lon == 0) return;
    if (FromAircraft(panel.lat, panel.lon).dist < kNear) panel.position_ok = true;
}

void ReadPair(Panel& panel, std::string_view name, std::string_view text) {
    constexpr std::size_t kMostLegs = 2000;
    if (EqualIgnoringCase(name, "aircraft")) {
        if (EqualIgnoringCase(text, identity.aircraft)) panel.aircraft_ok = true;
    } else if (EqualIgnoringCase(name, "lat") || EqualIgnoringCase(name, "lon")) {
        (name.back() == 't' || name.back() == 'T' ? panel.lat : panel.lon) = LeadingDouble(text);
        CheckPosition(panel);
    } else if (!panel.aircraft_ok) {
        return;
    } else if (EqualIgnoringCase(name, "FPLN")) {
        if (panel.legs.size() < kMostLegs) panel.legs.push_back(PanelLegOf(text));
    } else if (const PanelKey* key = FindPanelKey(name)) {
        panel.values.push_back({key, text});
    }
}

Panel ReadPanel(std::string_view rest) {
    constexpr std::size_t kMostCharacters = 299;
    Panel panel{.aircraft_ok = cfg.PanelLoadCheckAircraftMatch == 0,
                .position_ok = cfg.PanelLoadCheckLatLonMatch == 0};
    while (const auto line = NextLine(rest)) {
        const std::size_t equals = line->find('=');
        if (line->starts_with(';') || equals == std::string_view::npos) continue;
        const std::string_view name = Trimmed(line->substr(0, equals));
        const bool leg = EqualIgnoringCase(name, "FPLN");
        ReadPair(panel, name, (leg ? *line : line->substr(0, kMostCharacters)).substr(equals + 1));
    }
    return panel;
}

bool BelongsToRoute(const PanelKey& key) {
    return key.use == PanelKeyUse::kOfRoute || key.use == PanelKeyUse::kLegOfRoute;
}

// A leg that the route doesn't have is none.
void StoreLegPlace(const StoredValue& value, int leg_cnt) {
    constexpr std::string_view kActiveLeg = "stpos";
    const int leg = LeadingInt(value.text);
    const bool there = leg >= 0 && leg <= leg_cnt;
    StorePanelText(*value.key, there ? value.text : value.key->name == kActiveLeg ? "999" : "0");
}

void StoreValues(const Panel& panel, bool act) {
    for (const StoredValue& value : panel.values) {
        const PanelKey& key = *value.key;
        if (key.use == PanelKeyUse::kRunway || (BelongsToRoute(key) && panel.legs.empty())) continue;
        if (key.use == PanelKeyUse::kLegOfRoute)
            StoreLegPlace(value, plan.mod.leg_cnt);
        else
            StorePanelText(key, value.text);
        if (act && key.then != nullptr) key.then(LeadingDouble(value.text));
    }
}

int StoredNumber(const Panel& panel, std::string_view name) {
    for (const StoredValue& value : panel.values)
        if (value.key->name == name) return LeadingInt(value.text);
    return 0;
}

void BeginRoute(const Panel& panel) {
    ClearFlightPlan();
    BeginLoadedRoute();
    for (const FlightPlanLeg& leg : panel.legs) plan.mod.legs[++plan.mod.leg_cnt] = leg;
    FinishLoadedRoute({});
    // Constraints at the origin are the file's, at the destination the airport's.
    plan.mod.legs[0].alt_restr = panel.legs.front().alt_restr;
    FlightPlanLeg& last = plan.mod.legs[plan.mod.leg_cnt];
    if (IsAirport(last)) last.alt = last.alt_restr = airports.dest_airport.elevation_ft;
}

void TakeRunways(const Panel& panel) {
    const int departure = StoredNumber(panel, "fms_dep_rwy_pos"),
              arrival = StoredNumber(panel, "fms_dest_rwy_pos");
    if (departure >= 1 && departure <= airports.origin_airport.runway_cnt) {
        plan.mod.ends.fms_dep_rwy_pos = departure;
        plan.mod.ends.dep_runway = std::as_const(airports.origin_airport.runways)[departure].ident;
        plan.active.ends = plan.mod.ends;
    }
    if (arrival >= 1 && arrival <= airports.dest_airport.runway_cnt) {
        plan.mod.procedures.fms_dest_rwy_pos = arrival;
        const std::string& runway = std::as_const(airports.dest_airport.runways)[arrival].ident;
        plan.mod.procedures.arr_appr_rwy = runway;
        const std::string approach = plan.mod.procedures.appr_type + runway;
        if (HasApproach(approach)) plan.mod.procedures.arr_appr = plan.mod.procedures.appr_type;
        plan.active.procedures = plan.mod.procedures;
    }
}

// 3 is flown on from the stored leg; below it the route waits for ACTIVATE and EXEC as it did.
void EndRoute(const Panel& panel) {
    const int stored = StoredNumber(panel, "fms_fpln_active");
    if (stored < kRouteActive) {
        plan.fms_fpln_active = stored < kRouteNone ? kRouteNone : stored;
        MarkLoadedRouteNew();
        return;
    }
    constexpr std::string_view kDirect = "DIRECT";
    plan.fms_fpln_active = kRouteActive;
    if (plan.active.active_leg.from == kDirect) plan.active.active_leg.direct_flag = 1;
    plan.mod.stpos = plan.active.stpos;
    SetPendingActiveLeg(plan.active.stpos);
    ExecuteRoute();
    StoreValues(panel,
                false);  // tops, speeds and altitudes are those that were flown, not those worked out now
    plan.fms_fpln_active = kRouteActive;
}

void ApplyPanel(const Panel& panel) {
    const bool route = !panel.legs.empty();
    if (route) BeginRoute(panel);
    StoreValues(panel, true);
    TakeRunways(panel);
    if (route) EndRoute(panel);
    if (sim.on_ground != 0) flight_log.fplog_mode = -1;
}

bool IsColdPanel(std::string_view name) {
    return name == "COLD & DARK.PNL" || name == "COLDANDDARK.PNL";
}

void TellResult(bool aircraft_ok, bool position_ok, std::string_view name, int mode) {
    if ((aircraft_ok && position_ok) || IsColdPanel(name))
        PostCduMessage("PANEL STATE LOADED", kFileStored, kHelpPanelLoaded, kBothSides);
    else if (mode == kCrewLoad)
        PostCduMessage({}, kRefusedOperation, aircraft_ok ? kHelpOtherPlace : kHelpOtherModel, kBothSides);
}

}  // namespace

void LoadPanelState(std::string_view name, int mode) {
    const auto file = ReadPanelFile(name.empty() ? kLastSaved : name);
    if (!file) {
        if (mode == kCrewLoad && !name.empty())
            PostCduMessage("FILE NOT FOUND", kRefusedOperation, kHelpPanelFailed, kBothSides);
        if (IsColdPanel(name)) TellResult(true, true, name, mode);
        return;
    }
    const Panel panel = ReadPanel(file->Text());
    if (panel.aircraft_ok) ApplyPanel(panel);
    TellResult(panel.aircraft_ok, panel.position_ok, name, mode);
}

void LoadPanelAtStart() {
    if (cfg.LoadPanelStateonAcLoad != 1) return;
    const std::string of_flight = host_link.loaded_flight.empty()
                                      ? std::string()
                                      : PanelFileName(PanelOfFlight(host_link.loaded_flight));
    if (!of_flight.empty() && ReadPanelFile(of_flight))
        LoadPanelState(of_flight, kLoadAtStart);
    else if (!cfg.PanelState.empty())
        LoadPanelState(cfg.PanelState, kLoadAtStart);
}
