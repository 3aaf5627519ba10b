#include "host/fly/start.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "host/inspection.h"
#include "host/scenario/words.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kTokenMasterBattery = 364;

void TakeDown(Session& session, std::initializer_list<std::string> words) {
    if (session.recorder != nullptr) Record(*session.recorder, words);
}

std::string Absolute(const std::string& folder) {
    return std::filesystem::absolute(folder).string();
}

void TakeDownSettings(Session& session, const FlyOptions& options) {
    if (!options.root.empty()) TakeDown(session, {"root", Absolute(options.root)});
    if (!options.navdata.empty()) TakeDown(session, {"navdata", Absolute(options.navdata)});
    if (!options.aircraft.empty()) TakeDown(session, {"aircraft", options.aircraft});
    for (const std::string& line : session.settings.cfg_lines) TakeDown(session, {"cfg", line});
    TakeDown(session, {"warp", NumberText(world.sim_rate)});
    TakeDown(session, {"token", std::to_string(kTokenMasterBattery), options.cold ? "0" : "1"});
    TakeDown(session, {"fdm", "on"});
    TakeDown(session, {"start"});
}

// The first leg's runway end, or the airport, as a place in the air on the way to the first fix.
Placement AfterTakeOff(const Session& session) {
    const auto number = [&](const char* name) { return std::atof(ReadVariable(session, name).c_str()); };
    const double lat = number("FlightPlan[0].lat"), lon = number("FlightPlan[0].lon");
    Placement placement{lat, lon, 0, number("leg_crs") + number("mgvar"), 220};
    placement.alt_ft = std::round(GroundElevationMetres(lat, lon) / 0.3048 / 100) * 100 + 3000;
    return placement;
}

}  // namespace

bool StartFlight(Session& session, const FlyOptions& options, std::string& error) {
    world.paints_in_line = options.headless;
    world.sim_rate = options.headless ? 1 : options.rate;
    session.settings.demo_root = options.demo_root;
    session.settings.root = options.root;
    session.settings.navdata = options.navdata;
    session.settings.title = options.aircraft;
    session.settings.fdm = true;
    if (options.root.empty()) session.settings.cfg_lines = {options.cold ? "Battery=0" : "SystemsOn=1"};
    TakeDownSettings(session, options);
    if (!PrepareSession(session, error)) return false;
    SetToken(kTokenMasterBattery, options.cold ? 0 : 1);
    if (!StartSession(session, error)) return false;
    if (options.cold) {
        TakeDown(session, {"cold"});
        ShutDownAircraft();
        return true;
    }
    TakeDown(session, {"route", options.route});
    TakeDown(session, {"exec"});
    if (!EnterRoute(session, options.route, error) || !ExecuteRoute(session, error)) return false;
    const Placement at = AfterTakeOff(session);
    TakeDown(session, {"at", NumberText(at.lat), NumberText(at.lon), NumberText(at.alt_ft),
                       NumberText(at.heading), NumberText(at.ias)});
    PlaceAircraft(at);
    return true;
}

}  // namespace host
