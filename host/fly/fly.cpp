#include "host/fly/fly.h"
#include "host/aircraft/air.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "host/flight.h"
#include "host/flightdeck/commands.h"
#include "host/fly/deck_loop.h"
#include "host/fly/flight_log.h"
#include "host/fly/navdata_table.h"
#include "host/fly/path_plot.h"
#include "host/fly/pilot.h"
#include "host/fly/playback.h"
#include "host/fly/profile_check.h"
#include "host/fly/start.h"
#include "host/process.h"
#include "host/scenario/words.h"
#include "host/world/key_event_effects.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr const char* kDemonstrationRoute = "KSEA/16L ALDER1 ALDER J1 RBL J1 AVE J1 FIM FIM2 KLAX/24R";
constexpr double kMaxHours = 24;

constexpr double kPatience = 600;  // seconds without progress
constexpr int kMostGoArounds = 3;

// The last that brought the flight nearer to its end.
struct Progress {
    double at = 0;  // second of the run
    int to = 0;
    Pilot::Phase phase = Pilot::kSettingUp;
    double to_go = 1e9;  // nm, the least since the leg began
    int go_arounds = 0;
};

// The flight along the route, looked at once a second.
struct RouteFlight {
    Pilot pilot;
    FlightLog log;
    DescentCheck check;
    int last = 0;
    int to = 0;  // the TO leg when it was last looked at
    double to_lat = 0, to_lon = 0;
    WayAhead behind_to;  // as seen from the TO fix
    double nearest = 1e9;
    bool in_the_air = false;
    bool leads_to_runway = false;  // so that what is predicted is what is flown
    bool arrived = false;
    Progress progress;
    std::string stuck;  // why it doesn't get any further; empty = it does
};

// The route ends on a final approach when its last leg leads to the runway along the landing course.
bool LinesUp(const Session& session, const RunwayEnd& runway) {
    constexpr double kShortest = 3, kMostAside = 0.15;  // nm
    const std::vector<RouteFix> fixes = FixesAhead(session);
    for (auto fix = fixes.rbegin(); fix != fixes.rend(); ++fix) {
        const RunwayPosition from = PositionBefore(runway, fix->lat, fix->lon);
        if (std::hypot(from.before, from.right) < kShortest) continue;  // of the runway itself
        return from.before > 0 && std::fabs(from.right) < kMostAside * from.before;
    }
    return false;
}

RouteFlight BeginFlight(const Session& session) {
    RouteFlight route;
    route.last = static_cast<int>(ModuleNumber(session, "fp_cnt"));
    route.pilot.cruise_ft = ModuleNumber(session, "cruise_alt");
    const int place = static_cast<int>(ModuleNumber(session, "fms_dest_rwy_pos"));
    route.pilot.arrival = ReadRunway(session, "dest_airport", place);
    // The system leads to a runway without a landing system when it is the one that has been entered.
    if (route.pilot.arrival.ils_frequency.empty() && place == 0) route.pilot.arrival = {};
    route.leads_to_runway = LinesUp(session, route.pilot.arrival);
    route.pilot.route_lines_up = route.leads_to_runway;
    route.log.start_fuel = AircraftNumber("fuel");
    return route;
}

// Looks at the plan anew when it has moved on.
void FollowPlan(const Session& session, RouteFlight& route) {
    const int to = static_cast<int>(ModuleNumber(session, "stpos"));
    WatchFixes(session, route.log, route.to > 0 && to != route.to);
    if (to == route.to) return;
    route.to = to;
    route.last = static_cast<int>(ModuleNumber(session, "fp_cnt"));
    WayAhead& way = route.behind_to = {};
    const std::vector<RouteFix> fixes = FixesAhead(session);
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        if (i > 0) way.to_go += DistanceNm(fixes[i - 1].lat, fixes[i - 1].lon, fixes[i].lat, fixes[i].lon);
        if (way.fastest > 0 || fixes[i].fastest <= 0) continue;
        way.fastest = fixes[i].fastest;
        way.to_limit = way.to_go;
    }
    if (fixes.empty()) return;
    route.to_lat = fixes[0].lat;
    route.to_lon = fixes[0].lon;
}

void KeepLog(const Session& session, RouteFlight& route) {
    if (!route.in_the_air && AircraftNumber("vs") > 300) {
        route.in_the_air = true;
        PrintProgress("off the ground");
        TakeForecast(session, route.log);
    }
    if (!route.log.at_top_of_climb && route.in_the_air && ModuleNumber(session, "toc") == 1) {
        route.log.at_top_of_climb = true;
        PrintProgress("top of climb");
        TakeForecast(session, route.log);
    }
}

void TellPhase(Pilot::Phase phase) {
    if (phase == Pilot::kDescent) PrintProgress("descent");
    if (phase == Pilot::kApproach) PrintProgress("approach");
    if (phase == Pilot::kGoAround) PrintProgress("going around");
    if (phase == Pilot::kRollout) PrintProgress("touch-down");
    if (phase == Pilot::kStopped) PrintProgress("stopped");
}

// A flight may turn away from its end for a while, but not for long.
void WatchProgress(RouteFlight& route, double to_go) {
    constexpr double kNearer = 0.1;  // nm
    Progress& last = route.progress;
    const Pilot::Phase phase = route.pilot.phase;
    if (phase != last.phase && phase == Pilot::kGoAround) ++last.go_arounds;
    const bool is_new = route.to != last.to || phase != last.phase;
    if (is_new || to_go < last.to_go - kNearer)
        last = {world.seconds, route.to, phase, to_go, last.go_arounds};
    const bool waits = world.seconds - last.at > kPatience;
    if (!waits && last.go_arounds < kMostGoArounds) return;
    char where[160];
    std::snprintf(where, sizeof where, ": %s, %.0f kt, %.0f lb of fuel, %.1f nm to go, pilot %s",
                  flight.aircraft.on_ground ? "on the ground" : "in the air", AircraftNumber("gs"),
                  AircraftNumber("fuel"), to_go, world.pilot_does.c_str());
    route.stuck =
        (waits ? "no progress for ten minutes" : "no landing in three approaches") + std::string(where);
}

// Has the pilot act and the log printed, until the aircraft stands on the runway; where none can be landed
// on, until the last fix.
void StepRoute(Session& session, RouteFlight& route) {
    if (route.arrived) return;
    FollowPlan(session, route);
    const double to_fix =
        DistanceNm(AircraftNumber("lat"), AircraftNumber("lon"), route.to_lat, route.to_lon);
    WayAhead way = route.behind_to;
    way.to_go += to_fix;
    way.to_limit += to_fix;
    way.to_lat = route.to_lat;
    way.to_lon = route.to_lon;
    const Pilot::Phase before = route.pilot.phase;
    if (!world.pilot_does.empty()) {
        StepPilot(route.pilot, session, way);
        world.pilot_does = TellWhatPilotDoes(route.pilot);
    }
    if (route.pilot.phase != before) TellPhase(route.pilot.phase);
    if (!flight.aircraft.on_ground) route.log.touchdown_fuel = AircraftNumber("fuel");
    KeepLog(session, route);
    StepDescentCheck(session, route.check);
    WatchProgress(route, way.to_go);
    if (!route.pilot.arrival.name.empty()) {
        route.arrived = route.pilot.phase == Pilot::kStopped;
        return;
    }
    if (route.to < route.last) return;
    route.arrived = way.to_go > route.nearest || way.to_go < 0.5;  // overhead, or past it
    route.nearest = way.to_go;
}

void FlyHeadless(Session& session, const RouteFlight& route, const std::function<void()>& each_second) {
    while (EndSignal() == 0 && !route.arrived && route.stuck.empty() && world.seconds < kMaxHours * 3600) {
        TickSession(session, world.paused);
        if (world.ticks % 18 == 0) each_second();
    }
}

void PrintEnd(const RouteFlight& route, double wall_seconds) {
    const RunwayEnd& runway = route.pilot.arrival;
    PrintLog(route.log);
    if (!route.arrived)
        std::printf("\n%s", route.stuck.empty() ? "Broken off" : ("Given up, " + route.stuck + ";").c_str());
    else if (route.pilot.phase != Pilot::kStopped)
        std::printf("\nAt the last fix");
    else {
        const RunwayPosition at = PositionBefore(runway, AircraftNumber("lat"), AircraftNumber("lon"));
        std::printf("\nStopped on runway %s, %.0f ft past the threshold, %.0f ft from the centre line,",
                    runway.name.c_str(), -at.before * kFeetPerNm, std::fabs(at.right) * kFeetPerNm);
    }
    const double burnt = route.log.start_fuel - AircraftNumber("fuel");
    std::printf(" after %s, %d fixes passed, %.0f lb burned; %.0f times real time\n",
                DurationText(world.seconds).c_str(), static_cast<int>(route.log.passed.size()), burnt,
                world.seconds / wall_seconds);
    PrintDescentCheck(route.check);
    PrintConstraintCheck(route.log);
    if (route.arrived && route.log.at_top_of_climb && route.leads_to_runway) PrintForecastCheck(route.log);
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
    if (options.route.empty() && !options.cold) options.route = kDemonstrationRoute;
    HoldEndSignals();
    world = World{};
    flight = Flight{};
    if (!options.play.empty()) return PlayRecording(options);
    Session session;
    Recorder recorder;
    std::string error;
    if (!options.record.empty()) session.recorder = &recorder;
    if ((session.recorder != nullptr && !OpenRecording(recorder, options.record, error)) ||
        !StartFlight(session, options, error)) {
        return Refuse(session, error);
    }

    PathPlot plot;
    RouteFlight route;
    route.arrived = options.cold;  // there is none
    if (!options.cold) route = BeginFlight(session);
    if (options.cold || options.no_pilot)
        ApplyDeckCommand(session, {.kind = DeckCommand::kKeyEvent, .value = kKeyTakeStick});
    else
        world.pilot_does = TellWhatPilotDoes(route.pilot);
    const auto each_second = [&] {
        StepRoute(session, route);
        if (!options.plot.empty() && options.headless && route.in_the_air) StepPlot(session, plot);
        if (options.watch) options.watch(session);
    };
    const auto began = std::chrono::steady_clock::now();
    std::shared_ptr<DeckLoop> deck;
    if (!options.headless && !(deck = OpenFlightDeck(session, options, error))) return Refuse(session, error);
    PrintNavdata(session);
    if (!options.cold) PrintFlightHeading(session, options.route);
    std::fflush(stdout);
    if (deck)
        RunFlightDeck(*deck, each_second);
    else
        FlyHeadless(session, route, each_second);
    deck.reset();
    const double wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    if (!options.cold) PrintEnd(route, wall);
    if (!options.plot.empty() && !FinishPlot(plot, options.plot)) error = options.plot + " can't be written";
    StopSession(session);
    if (!error.empty()) {
        std::fprintf(stderr, "tz900 fly: %s\n", error.c_str());
        return 1;
    }
    if (!recorder.error.empty()) {
        std::fprintf(stderr, "tz900 fly: %s\n", recorder.error.c_str());
        return 1;
    }
    if (!world.never_a_number.empty()) {
        std::fprintf(stderr, "tz900 fly: %s was no number\n", world.never_a_number.c_str());
        return 1;
    }
    return options.headless && !route.arrived ? 1 : 0;
}

}  // namespace host
