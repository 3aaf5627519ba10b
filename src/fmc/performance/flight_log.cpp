#include "fmc/performance/flight_log.h"

#include <array>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "base/units.h"
#include "fmc/performance/predictions.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/files.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/identity.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

enum LogPhase {
    kNotStarted = -1,
    kInitLoad,
    kPushBack,
    kTaxi,
    kTakeoff,
    kClimb,
    kCruise,
    kDescent,
    kApproach,
    kLanding,
    kArrTaxi,
    kParked,
    kEndFlight
};
constexpr std::array kPhaseTexts = {"InitLoad", "PushBack", "Taxi",    "Takeoff",  "Climb", "Cruise",
                                    "Descent",  "Approach", "Landing", "Arr_Taxi", "",      "End_Flight"};
static_assert(kPhaseTexts.size() == kEndFlight + 1);

constexpr const char* kLogFile = "\\Velarion\\TZ900\\fpl.log";
constexpr const char* kDashes =
    "-------------------------------------------------------------------------------------------------------"
    "\n";
constexpr const char* kHeader =
    "; TIME   Segment  Waypoint   GSP   TAS       V/S    ALT    FF     FOB       GW   IAS    N1    FPA\n";

constexpr double kSteepFpm = 400;

void BeginLog() {
    flight_log = {};
    flight_log.start_fuel = sim.total_fuel;
    flight_log.fplog_mode = kInitLoad;
    time_base.fltsecs = 0;
    if (cfg.LogFlightPlan != 1) return;
    const std::string head =
        Format("FlightPlan=%.20s-%.20s\nAircraft=%.200s\n", plan.active.ends.origin.c_str(),
               plan.active.ends.dest.c_str(), identity.aircraft.c_str());
    WriteFile(kLogFile, head + kDashes + kHeader + kDashes);
}

double FlightPathAngle() {
    if (sim.ground_speed_kt < 1) return 0;
    return std::atan2(sim.vs_fpm, sim.ground_speed_kt * kFpmPerKnot) * kDegPerRad;
}

void WriteRow() {
    flight_log.last_row_secs = sim.abs_time;
    flight_log.last_row_alt = sim.ind_alt_ft;
    if (cfg.LogFlightPlan != 1) return;
    const int seconds = static_cast<int>(time_base.fltsecs);
    const double fuel_flow =
        ReadNamedVar(NamedVar("tz_eng1_fuel_flow")) + ReadNamedVar(NamedVar("tz_eng2_fuel_flow"));
    AppendToFile(
        kLogFile,
        Format(
            "%02d:%02d:%02d %-10s %6.16s %5.0f  %5.0f   %5.0f  %6.0f  %5.0f %7.0f  %7.0f %-3.0f  %.2f %.1f\n",
            seconds / 3600, seconds / 60 % 60, seconds % 60,
            kPhaseTexts[static_cast<std::size_t>(flight_log.fplog_mode)],
            FlightPlanLegAt(plan.active.stpos).ident.c_str(), sim.ground_speed_kt, sim.tas_kt, sim.vs_fpm,
            sim.ind_alt_ft, fuel_flow, sim.total_fuel, GrossWeight(), sim.ias_kt, (sim.n1_l + sim.n1_r) / 2,
            FlightPathAngle()));
}

// Seconds since a condition began to hold; 0 while it doesn't.
double HeldFor(bool holds, double& since) {
    if (!holds)
        since = 0;
    else if (since == 0)
        since = sim.abs_time;
    return holds ? sim.abs_time - since : 0;
}

bool IsParked() {
    constexpr double kStanding = 5;
    return sim.on_ground == 1 && sim.ground_speed_kt < kStanding && sim.parking_brake >= kParkingBrakeSet;
}

bool HasPhaseEnded() {
    switch (flight_log.fplog_mode) {
        case kInitLoad:
            return sim.ground_speed_kt > 2;
        case kPushBack:
            return sim.ground_speed_kt > 10;
        case kTaxi:
            return sim.ground_speed_kt > 60 && sim.radio_alt_ft > 50;
        case kTakeoff:
            return sim.vs_fpm > kSteepFpm;
        case kClimb:
            return std::fabs(sim.vs_fpm) < 50;
        case kCruise: {
            constexpr double kSeconds = 20;
            return HeldFor(sim.vs_fpm < -kSteepFpm, flight_log.descending_since) >= kSeconds;
        }
        case kDescent:
            return predictions.dist_to_dest < 20;
        case kApproach:
            return sim.ground_speed_kt < 60;
        case kLanding:
            return sim.ground_speed_kt < 40;
        case kArrTaxi:
            return sim.ground_speed_kt < 5;
        case kParked: {
            constexpr double kSeconds = 120;
            return HeldFor(sim.ground_speed_kt <= 10, flight_log.stopped_since) >= kSeconds || IsParked();
        }
        default:
            return false;
    }
}

bool IsRowDue() {
    const double since_row = sim.abs_time - flight_log.last_row_secs;
    switch (flight_log.fplog_mode) {
        case kClimb:
            return since_row >= 5 && sim.vs_fpm > kSteepFpm;
        case kCruise:
            return since_row >= 60 && std::fabs(sim.ind_alt_ft - flight_log.last_row_alt) > 100;
        case kDescent:
            return since_row >= 5 && sim.vs_fpm < -kSteepFpm;
        case kApproach:
            return since_row >= 5;
        default:
            return false;
    }
}

void BeginNextPhase(bool at_waypoint) {
    if (flight_log.fplog_mode == kApproach) flight_log.landing_fltsecs = time_base.fltsecs;
    ++flight_log.fplog_mode;
    const bool row_at_change = flight_log.fplog_mode <= kClimb || flight_log.fplog_mode == kEndFlight;
    if (row_at_change || at_waypoint) WriteRow();
}

}  // namespace

void FlightLogStep(bool at_waypoint) {
    if (sim.sim_rate != 1 || plan.active.stpos == kNoPlan || flight_log.fplog_mode >= kEndFlight) return;
    if (flight_log.fplog_mode <= kNotStarted) {
        BeginLog();
        WriteRow();
        return;
    }
    if (flight_log.fplog_mode >= kTakeoff && flight_log.fplog_mode <= kDescent && IsParked()) {
        flight_log.fplog_mode = kEndFlight;
        WriteRow();
        return;
    }
    if (HasPhaseEnded())
        BeginNextPhase(at_waypoint);
    else if (at_waypoint || IsRowDue())
        WriteRow();
}
