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

std::string Absolute(const std::string& folder) {
    return std::filesystem::absolute(folder).string();
}

void RecordSettings(Session& session, const FlyOptions& options) {
    if (!options.root.empty()) Record(session.recorder, {"root", Absolute(options.root)});
    if (!options.navdata.empty()) Record(session.recorder, {"navdata", Absolute(options.navdata)});
    if (!options.aircraft.empty()) Record(session.recorder, {"aircraft", options.aircraft});
    for (const std::string& line : session.settings.cfg_lines) Record(session.recorder, {"cfg", line});
    Record(session.recorder, {"warp", NumberText(world.sim_rate)});
    Record(session.recorder, {"token", std::to_string(kTokenMasterBattery), options.cold ? "0" : "1"});
    Record(session.recorder, {"fdm", "on"});
    Record(session.recorder, {"start"});
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
    // A recording is painted as its playback will be, call by call: pages take input as they are drawn.
    world.paints_in_line = options.headless || session.recorder != nullptr;
    world.sim_rate = options.headless ? 1 : options.rate;
    world.serves_peers = session.settings.pixel_surfaces = !options.headless;
    session.settings.demo_root = options.demo_root;
    session.settings.root = options.root;
    session.settings.navdata = options.navdata;
    session.settings.title = options.aircraft;
    session.settings.fdm = true;
    if (options.root.empty()) session.settings.cfg_lines = {options.cold ? "Battery=0" : "SystemsOn=1"};
    RecordSettings(session, options);
    if (!PrepareSession(session, error)) return false;
    SetToken(kTokenMasterBattery, options.cold ? 0 : 1);
    if (!StartSession(session, error)) return false;
    if (options.cold) {
        Record(session.recorder, {"cold"});
        ShutDownAircraft();
        return true;
    }
    Record(session.recorder, {"route", options.route});
    Record(session.recorder, {"exec"});
    if (!EnterRoute(session, options.route, error) || !ExecuteRoute(session, error)) return false;
    const Placement at = AfterTakeOff(session);
    Record(session.recorder, {"at", NumberText(at.lat), NumberText(at.lon), NumberText(at.alt_ft),
                              NumberText(at.heading), NumberText(at.ias)});
    PlaceAircraft(at);
    return true;
}

}  // namespace host
