#include "host/fly/fly.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "host/fly/deck_loop.h"
#include "host/fly/pilot.h"
#include "host/fly/start.h"
#include "host/inspection.h"
#include "host/process.h"
#include "host/scenario/words.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr const char* kDemonstrationRoute = "KSEA/16L ALDER J1 RBL J1 AVE J1 FIM KLAX/24R";
constexpr double kMaxHours = 24;

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

// The flight along the route, looked at once a second.
struct RouteFlight {
    Pilot pilot;
    Log log;
    int last = 0;
    double dest_lat = 0, dest_lon = 0;
    int to = 1;
    double nearest = 1e9;
    bool arrived = false;
};

RouteFlight BeginFlight(const Session& session) {
    RouteFlight route;
    route.last = static_cast<int>(Number(session, "fp_cnt"));
    route.dest_lat = Number(session, At("FlightPlan", route.last, "lat"));
    route.dest_lon = Number(session, At("FlightPlan", route.last, "lon"));
    route.pilot.arrival_ft =
        std::round(GroundElevationMetres(route.dest_lat, route.dest_lon) / 0.3048 / 100) * 100 + 3000;
    route.log.start_fuel = ValueNow("fuel");
    return route;
}

// Has the pilot act and the log printed, until the last fix.
void StepRoute(Session& session, RouteFlight& route) {
    if (route.arrived) return;
    const double to_go = DistanceNm(ValueNow("lat"), ValueNow("lon"), route.dest_lat, route.dest_lon);
    StepPilot(route.pilot, session, to_go);
    const int to = static_cast<int>(Number(session, "stpos"));
    if (to != route.to) PrintFix(session, route.log);
    route.to = to;
    if (to < route.last) return;
    route.arrived = to_go > route.nearest || to_go < 0.5;  // overhead, or past it
    route.nearest = to_go;
}

void FlyHeadless(Session& session, RouteFlight& route) {
    while (EndSignal() == 0 && !route.arrived && world.seconds < kMaxHours * 3600) {
        TickSession(session, world.paused);
        if (world.ticks % 18 == 0) StepRoute(session, route);
    }
}

void PrintEnd(const RouteFlight& route, double wall_seconds) {
    std::printf("\n%s after %s, %d fixes passed, %.0f lb burned; %.0f times real time\n",
                route.arrived ? "At the last fix" : "Broken off", DurationText(world.seconds).c_str(),
                route.log.fixes, route.log.start_fuel - ValueNow("fuel"), world.seconds / wall_seconds);
}

// A flight that can't start leaves nothing.
int Refuse(Session& session, const std::string& error) {
    std::fprintf(stderr, "tz900 fly: %s\n", error.c_str());
    if (session.recorder != nullptr) DiscardRecording(*session.recorder);
    StopSession(session);
    return 2;
}

}  // namespace

int Fly(const FlyOptions& given) {
    FlyOptions options = given;
    if (options.route.empty()) options.route = kDemonstrationRoute;
    HoldEndSignals();
    world = World{};
    Session session;
    Recorder recorder;
    std::string error;
    if (!options.record.empty()) session.recorder = &recorder;
    if ((session.recorder != nullptr && !OpenRecording(recorder, options.record, error)) ||
        !StartFlight(session, options, error)) {
        return Refuse(session, error);
    }

    RouteFlight route;
    route.arrived = options.cold;  // there is none
    if (!options.cold) route = BeginFlight(session);
    const auto each_second = [&] { StepRoute(session, route); };
    const auto began = std::chrono::steady_clock::now();
    const auto begin = [&] {
        if (!options.cold) PrintHeading(options, session);
    };
    if (options.headless) {
        begin();
        FlyHeadless(session, route);
    } else if (!RunFlightDeck(session, options, begin, each_second, error)) {
        return Refuse(session, error);
    }
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    if (!options.cold) PrintEnd(route, wall);
    StopSession(session);
    if (!recorder.error.empty()) {
        std::fprintf(stderr, "tz900 fly: %s\n", recorder.error.c_str());
        return 1;
    }
    return options.headless && !route.arrived ? 1 : 0;
}

}  // namespace host
