#include "host/fly/start.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "host/aircraft/air.h"
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
    Placement placement{ModuleNumber(session, "FlightPlanMod[0].lat"),
                        ModuleNumber(session, "FlightPlanMod[0].lon"), 0, 0};
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

// The first result of a function of the system.
double CalledNumber(const Session& session, const std::string& call) {
    const InspectionAnswer answer = Ask(session.linkage->inspection->call_function, call.c_str());
    return answer.good && !answer.results.empty() ? std::atof(answer.results[0].second.c_str()) : 0;
}

// The route that has been entered, in miles over the ground and through the air.
struct RouteLength {
    double miles = 0, air_miles = 0;
};
RouteLength MeasureRoute(const Session& session, const FlyOptions& options) {
    constexpr double kCruiseTas = 480;
    const int last = static_cast<int>(ModuleNumber(session, "mod_cnt"));
    RouteLength length;
    double lat = 0, lon = 0;
    for (int leg = 0; leg <= last; ++leg) {
        const std::string path = "FlightPlanMod[" + std::to_string(leg) + "].";
        const double to_lat = ModuleNumber(session, path + "lat"),
                     to_lon = ModuleNumber(session, path + "lon");
        if (to_lat == 0 && to_lon == 0) continue;
        const double miles = leg > 0 ? DistanceNm(lat, lon, to_lat, to_lon) : 0;
        const double east = std::remainder(to_lon - lon, 360) * std::cos((lat + to_lat) / 2 * kRad);
        const double along =
            options.wind.size() == 2
                ? -options.wind[1] * std::cos(options.wind[0] * kRad - std::atan2(east, to_lat - lat))
                : 0;
        length.miles += miles;
        length.air_miles += miles * kCruiseTas / std::max(kCruiseTas + along, kCruiseTas / 2);
        lat = to_lat;
        lon = to_lon;
    }
    return length;
}

// As high as the way allows: climb and descent take some three hundred miles to 35,000 ft and back.
double CruiseAltitude(const Session& session, double miles) {
    constexpr double kHighest = 35000, kLowest = 7000, kMilesForHighest = 330, kStep = 1000;
    const double flight_level = CalledNumber(session, "MaxAltitude");
    const double most = std::min(kHighest, std::floor(flight_level / 10) * kStep);
    const double altitude = std::floor(kHighest * miles / kMilesForHighest / kStep) * kStep;
    return std::clamp(altitude, kLowest, std::max(most, kLowest));
}

// For climb and way and a reserve.
void LoadFuelFor(Session& session, double air_miles) {
    constexpr double kReserve = 36000, kPerMile = 27, kStep = 1000;
    constexpr int kSensed = 18;  // ticks
    const double pounds = std::ceil((kReserve + kPerMile * air_miles) / kStep) * kStep;
    Record(session.recorder, {"fuel", NumberText(pounds)});
    LoadFuel(pounds);
    for (int tick = 0; tick < kSensed; ++tick) TickSession(session, false);
}

void Enter(Session& session, const std::string& name, double value) {
    ApplyDeckCommand(session, {.kind = DeckCommand::kStateVariable, .name = name, .text = NumberText(value)});
}

// What the crew enters before EXEC: the cruise altitude, and speeds. Climb and cruise are those of cost index
// 60; below the altitude for which its Mach holds, the Mach is that of the true airspeed that is planned
// with. The descent is slow enough for engines at idle to keep to the path.
void EnterPerformance(Session& session, double miles) {
    const double cruise = CruiseAltitude(session, miles);
    constexpr double kClimbIas = 317, kCruiseMach = 0.836, kDescentIas = 280, kSlowIas = 290, kHigh = 33000;
    const bool high = cruise >= kHigh;
    const double cruise_ias = high ? kClimbIas : kSlowIas;
    const double planned =
        CalledNumber(session, "PlanningTas " + NumberText(cruise_ias) + " " + NumberText(cruise));
    const double cruise_mach = high ? kCruiseMach : planned / SpeedOfSound(cruise, {});
    struct Entry {
        const char* name;
        double value;
    };
    const Entry entries[] = {
        {"pending_cruise_alt", cruise}, {"climb_ias", high ? kClimbIas : kSlowIas},
        {"climb_mach", cruise_mach},    {"cruise_ias", cruise_ias},
        {"cruise_mach", cruise_mach},   {"descent_ias", kDescentIas},
        {"descent_mach", cruise_mach},  {"climb_mach_manual", 1},
        {"CruiseMachSelected", 1},      {"descent_mach_manual", 1},
    };
    for (const Entry& entry : entries) Enter(session, entry.name, entry.value);
}

// The wind of the briefing, at all fixes for the whole way up.
void EnterWinds(Session& session, const FlyOptions& options) {
    if (options.wind.size() != 2) return;
    const int last = static_cast<int>(ModuleNumber(session, "mod_cnt"));
    for (int leg = 0; leg <= last; ++leg) {
        const std::string level = "FlightPlanMod[" + std::to_string(leg) + "].wind[0].";
        Enter(session, level + "alt", ModuleNumber(session, "pending_cruise_alt"));
        Enter(session, level + "dir", options.wind[0]);
        Enter(session, level + "spd", options.wind[1]);
    }
}

// The route is entered and the aircraft stands at its origin; to activate and execute it is the crew's.
bool LayOutRoute(Session& session, const FlyOptions& options, std::string& error) {
    constexpr double kThere = 5;  // nm
    Record(session.recorder, {"route", options.route});
    if (!EnterRoute(session, options.route, error)) return false;
    const double lat = ModuleNumber(session, "origin_airport.lat"),
                 lon = ModuleNumber(session, "origin_airport.lon");
    if (DistanceNm(AircraftNumber("lat"), AircraftNumber("lon"), lat, lon) < kThere) return true;
    const Placement at{lat, lon, GroundElevationMetres(lat, lon) / kMetresPerFoot, 0};
    Record(session.recorder, {"at", NumberText(at.lat), NumberText(at.lon), NumberText(at.alt_ft), "0"});
    PlaceAircraft(at);
    return true;
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
        return options.route.empty() || LayOutRoute(session, options, error);
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
    // The predictions that EXEC makes begin where the aircraft stands.
    const Placement at = LinedUp(session);
    Record(session.recorder, {"at", NumberText(at.lat), NumberText(at.lon), NumberText(at.alt_ft),
                              NumberText(at.heading), NumberText(at.ias)});
    PlaceAircraft(at);
    const RouteLength length = MeasureRoute(session, options);
    LoadFuelFor(session, length.air_miles);
    EnterPerformance(session, length.miles);
    EnterWinds(session, options);
    Record(session.recorder, {"exec"});
    return ExecuteRoute(session, error);
}

}  // namespace host
