#include "host/fly/fly.h"

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <numbers>
#include <thread>

#include "host/fly/pilot.h"
#include "host/inspection.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr const char* kDemonstrationRoute = "KSEA/16L ALDER J1 RBL J1 AVE J1 FIM KLAX/24R";
constexpr double kMaxHours = 24;

volatile std::sig_atomic_t interrupted = 0;

struct Log {
    int fixes = 0;
    double start_fuel = 0;
};

double Number(const Session& session, const std::string& path) {
    return std::atof(ReadVariable(session, path).c_str());
}

std::string At(const char* list, int index, const char* field) {
    return std::string(list) + '[' + std::to_string(index) + "]." + field;
}

double DistanceNm(double lat1, double lon1, double lat2, double lon2) {
    const double degree = std::numbers::pi / 180;
    const double north = std::sin((lat2 - lat1) / 2 * degree), east = std::sin((lon2 - lon1) / 2 * degree);
    const double square = north * north + std::cos(lat1 * degree) * std::cos(lat2 * degree) * east * east;
    return 2 * std::asin(std::min(1.0, std::sqrt(square))) / degree * 60;
}

double ValueNow(const char* name) {
    double value = 0;
    AircraftValue(name, value);
    return value;
}

void PrintHeading(const FlyOptions& options, const Session& session) {
    std::printf("%s  %s  %s\n\n", ReadVariable(session, "aircraft").c_str(),
                ReadVariable(session, "airac_cycle_text").c_str(), options.route.c_str());
    std::printf("  TIME   FIX      VIA        ALT     IAS   GS    FUEL     XTK\n");
}

void PrintFix(const Session& session, Log& log) {
    const std::string fix = ReadVariable(session, "PositionReports[1].leg.ident");
    std::printf("  %-6s %-8s %-8s %6.0f   %4.0f %4.0f  %6.0f   %5.2f\n",
                ReadVariable(session, "PositionReports[1].time").c_str(), fix.c_str(),
                ReadVariable(session, "PositionReports[1].leg.via").c_str(), ValueNow("alt"), ValueNow("ias"),
                ValueNow("gs"), ValueNow("fuel"), Number(session, "xtk"));
    std::fflush(stdout);
    ++log.fixes;
}

// The first leg's runway end, or the airport, as a place in the air on the way to the first fix.
Placement AfterTakeOff(const Session& session) {
    const double lat = Number(session, "FlightPlan[0].lat"), lon = Number(session, "FlightPlan[0].lon");
    Placement placement{lat, lon, 0, Number(session, "leg_crs") + Number(session, "mgvar"), 220};
    placement.alt_ft = std::round(GroundElevationMetres(lat, lon) / 0.3048 / 100) * 100 + 3000;
    return placement;
}

// Flies on until the last fix, an interruption or the end of the fuel; true at the last fix.
bool FlyOn(Session& session, const FlyOptions& options, Log& log) {
    Pilot pilot;
    const int last = static_cast<int>(Number(session, "fp_cnt"));
    const double dest_lat = Number(session, At("FlightPlan", last, "lat"));
    const double dest_lon = Number(session, At("FlightPlan", last, "lon"));
    pilot.arrival_ft = std::round(GroundElevationMetres(dest_lat, dest_lon) / 0.3048 / 100) * 100 + 3000;
    auto next_tick = std::chrono::steady_clock::now();
    int to = 1;
    double nearest = 1e9;
    while (interrupted == 0 && world.seconds < kMaxHours * 3600) {
        TickSession(session, world.paused);
        if (!options.headless) {
            next_tick += std::chrono::microseconds(static_cast<long>(1e6 / 18 / std::max(options.rate, 0.1)));
            std::this_thread::sleep_until(next_tick);
        }
        if (world.ticks % 18 != 0) continue;
        const double to_go = DistanceNm(ValueNow("lat"), ValueNow("lon"), dest_lat, dest_lon);
        StepPilot(pilot, session, to_go);
        const int now_to = static_cast<int>(Number(session, "stpos"));
        if (now_to != to) PrintFix(session, log);
        to = now_to;
        if (to < last) continue;
        if (to_go > nearest || to_go < 0.5) return true;  // overhead, or past it
        nearest = to_go;
    }
    return false;
}

}  // namespace

int Fly(const FlyOptions& given) {
    FlyOptions options = given;
    if (options.route.empty()) options.route = kDemonstrationRoute;
    world = World{};
    Session session;
    session.settings.demo_root = options.demo_root;
    session.settings.root = options.root;
    session.settings.navdata = options.navdata;
    session.settings.title = options.aircraft;
    session.settings.fdm = true;
    std::string error;
    bool ready = PrepareSession(session, error) && StartSession(session, error);
    ready = ready && EnterRoute(session, options.route, error) && ExecuteRoute(session, error);
    if (!ready) {
        std::fprintf(stderr, "tz900 fly: %s\n", error.c_str());
        StopSession(session);
        return 2;
    }
    PlaceAircraft(AfterTakeOff(session));
    std::signal(SIGINT, [](int) { interrupted = 1; });

    Log log;
    log.start_fuel = ValueNow("fuel");
    PrintHeading(options, session);
    const auto began = std::chrono::steady_clock::now();
    const bool arrived = FlyOn(session, options, log);
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::printf("\n%s after %d:%02d, %d fixes passed, %.0f lb burned; %.0f times real time\n",
                arrived ? "At the last fix" : "Broken off", static_cast<int>(world.seconds) / 3600,
                static_cast<int>(world.seconds) / 60 % 60, log.fixes, log.start_fuel - ValueNow("fuel"),
                world.seconds / wall);
    StopSession(session);
    return arrived ? 0 : 1;
}

}  // namespace host
