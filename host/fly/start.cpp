#include "host/fly/start.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "host/aircraft/angles.h"
#include "host/flightdeck/commands.h"
#include "host/fly/flight_log.h"
#include "host/fly/runway.h"
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

// Where the take-off roll begins: on the departure runway, some way behind its threshold.
Placement LinedUp(const Session& session) {
    const RunwayEnd runway =
        ReadRunway(session, "origin_airport", static_cast<int>(ModuleNumber(session, "fms_dep_rwy_pos")));
    Placement placement{ModuleNumber(session, "FlightPlan[0].lat"),
                        ModuleNumber(session, "FlightPlan[0].lon"), 0,
                        ModuleNumber(session, "leg_crs") + ModuleNumber(session, "mgvar")};
    if (!runway.name.empty()) {
        constexpr double kBehindThreshold = 0.03;  // nm
        placement.heading = runway.course;
        placement.lat = runway.lat + kBehindThreshold / 60 * std::cos(runway.course * kRad);
        placement.lon =
            runway.lon + kBehindThreshold / 60 * std::sin(runway.course * kRad) / std::cos(runway.lat * kRad);
    }
    placement.alt_ft = GroundElevationMetres(placement.lat, placement.lon) / kMetresPerFoot;
    return placement;
}

double MaxAltitudeLevel(const Session& session) {
    const InspectionAnswer answer = Ask(session.linkage->inspection->call_function, "MaxAltitude");
    return answer.good && !answer.results.empty() ? std::atof(answer.results[0].second.c_str()) : 0;
}

// Miles along the route that has been entered.
double RouteMiles(const Session& session) {
    const int last = static_cast<int>(ModuleNumber(session, "mod_cnt"));
    double miles = 0, lat = 0, lon = 0;
    for (int leg = 0; leg <= last; ++leg) {
        const std::string path = "FlightPlanMod[" + std::to_string(leg) + "].";
        const double to_lat = ModuleNumber(session, path + "lat"),
                     to_lon = ModuleNumber(session, path + "lon");
        if (to_lat == 0 && to_lon == 0) continue;
        if (leg > 0) miles += DistanceNm(lat, lon, to_lat, to_lon);
        lat = to_lat;
        lon = to_lon;
    }
    return miles;
}

// As high as the way allows: climb and descent take some three hundred miles to 35,000 ft and back.
double CruiseAltitude(const Session& session, double miles) {
    constexpr double kHighest = 35000, kLowest = 7000, kMilesForHighest = 330, kStep = 1000;
    const double flight_level = MaxAltitudeLevel(session);
    const double most = std::min(kHighest, std::floor(flight_level / 10) * kStep);
    const double altitude = std::floor(kHighest * miles / kMilesForHighest / kStep) * kStep;
    return std::clamp(altitude, kLowest, std::max(most, kLowest));
}

// For the way and a reserve; what every flight has on board is enough for the shorter ones.
void LoadFuelFor(Session& session, double miles) {
    constexpr double kReserve = 35000, kPerMile = 29, kStep = 1000;
    constexpr int kSensed = 18;  // ticks
    const double pounds = std::ceil((kReserve + kPerMile * miles) / kStep) * kStep;
    if (pounds <= FuelOnBoard(flight.aircraft)) return;
    Record(session.recorder, {"fuel", NumberText(pounds)});
    LoadFuel(pounds);
    for (int tick = 0; tick < kSensed; ++tick) TickSession(session, false);
}

// What the crew enters before EXEC: the cruise altitude, and the speeds of cost index 60.
void EnterPerformance(Session& session, double miles) {
    struct Entry {
        const char* name;
        double value;
    };
    const Entry entries[] = {
        {"pending_cruise_alt", CruiseAltitude(session, miles)},
        {"climb_ias", 317},
        {"climb_mach", 0.835},
        {"cruise_ias", 317},
        {"cruise_mach", 0.836},
        {"descent_ias", 301},
        {"descent_mach", 0.829},
        {"climb_mach_manual", 1},
        {"CruiseMachSelected", 1},
        {"descent_mach_manual", 1},
    };
    for (const Entry& entry : entries)
        ApplyDeckCommand(
            session,
            {.kind = DeckCommand::kStateVariable, .name = entry.name, .text = NumberText(entry.value)});
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
    // The system knows the aircraft's weight, and looks at its panels, some seconds after it has come up.
    constexpr int kComesUp = 10 * 18;  // ticks
    for (int tick = 0; tick < kComesUp; ++tick) TickSession(session, false);
    if (options.wind.size() == 2) {
        Record(session.recorder, {"wind", NumberText(options.wind[0]), NumberText(options.wind[1])});
        SetWind(options.wind[0], options.wind[1]);
    }
    Record(session.recorder, {"route", options.route});
    if (!EnterRoute(session, options.route, error)) return false;
    const double miles = RouteMiles(session);
    LoadFuelFor(session, miles);
    EnterPerformance(session, miles);
    Record(session.recorder, {"exec"});
    if (!ExecuteRoute(session, error)) return false;
    const Placement at = LinedUp(session);
    Record(session.recorder, {"at", NumberText(at.lat), NumberText(at.lon), NumberText(at.alt_ft),
                              NumberText(at.heading), NumberText(at.ias)});
    PlaceAircraft(at);
    return true;
}

}  // namespace host
