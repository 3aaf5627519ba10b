#include "host/fly/profile_check.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/world/world.h"

namespace host {
namespace {

// The greatest departure from what is asked for, and where it was.
struct Worst {
    double by = 0;
    std::string where;
};

void Worsen(Worst& worst, double by, const PassedFix& at) {
    if (by > worst.by) worst = {by, " at " + at.fix.ident};
}

// The profile itself keeps to the constraint: of a climb that has none left, or a path too steep, it can't.
bool IsPlanned(const RouteFix& fix) {
    constexpr double kRounded = 10;  // ft
    return fix.altitude >= fix.lowest - kRounded &&
           (fix.highest == 0 || fix.altitude <= fix.highest + kRounded);
}

}  // namespace

void StepDescentCheck(const Session& session, DescentCheck& check) {
    constexpr double kNear = 250, kAtLevel = 50;  // ft
    if (ModuleNumber(session, "tod") != 1 || ModuleNumber(session, "vnav_engaged") != 1) return;
    const double window = CalcOf("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)");
    if (std::fabs(AircraftNumber("alt") - window) < kAtLevel) return;  // which holds the aircraft up
    ++check.seconds;
    if (std::fabs(ModuleNumber(session, "vnav_vert_dev")) <= kNear) ++check.near_path;
}

void PrintDescentCheck(const DescentCheck& check) {
    if (check.seconds > 0)
        std::printf("Descent by VNAV: within 250 ft of the path for %.1f %% of %d s\n",
                    100.0 * check.near_path / check.seconds, check.seconds);
}

void PrintConstraintCheck(const FlightLog& log) {
    Worst altitude, speed;
    int constrained = 0;
    for (const PassedFix& passed : log.passed) {
        const RouteFix& fix = passed.fix;
        // A constraint ends where the turn at its fix begins: it is met somewhere from there on to abeam.
        const double low = std::min(passed.actual.altitude, passed.turn_altitude),
                     high = std::max(passed.actual.altitude, passed.turn_altitude);
        if (IsPlanned(fix) && fix.lowest > 0) Worsen(altitude, fix.lowest - high, passed);
        if (IsPlanned(fix) && fix.highest > 0) Worsen(altitude, low - fix.highest, passed);
        if (fix.fastest > 0) Worsen(speed, passed.actual.ias - fix.fastest, passed);
        constrained += fix.lowest > 0 || fix.highest > 0 || fix.fastest > 0;
    }
    if (constrained > 0)
        std::printf("Constraints of %d fixes: altitudes met within %.0f ft%s, speeds within %.0f kt%s\n",
                    constrained, altitude.by, altitude.where.c_str(), speed.by, speed.where.c_str());
}

void PrintForecastCheck(const FlightLog& log) {
    const double more = log.touchdown_fuel - log.planned_fuel, burn = log.start_fuel - log.planned_fuel;
    std::printf(
        "Against the prediction at the top of climb: times within %.1f %%, fuel at touch-down %+.0f lb, "
        "%.1f %% of the burn\n",
        log.worst_time, more, burn > 0 ? std::fabs(more) / burn * 100 : 0.0);
}

}  // namespace host
