#include "host/fly/flight_log.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "host/aircraft/angles.h"
#include "host/inspection.h"
#include "host/scenario/words.h"
#include "host/world/world.h"

namespace host {
namespace {

// One phase of the flight as the predictions see it: how far it reaches, how fast, and its burn.
struct Phase {
    double until;  // nm from the aircraft
    double tas;    // kt
    double flow;   // lb/h
};

std::vector<Phase> PhasesAhead(const Session& session) {
    const auto number = [&](const char* name) { return ModuleNumber(session, name); };
    const double factor = 1 + number("perf_factor");
    std::vector<Phase> phases;
    const auto add = [&](double until, const char* tas, const char* burn) {
        phases.push_back({until, number(tas), number(burn) * factor});
    };
    if (number("toc") == 0) add(number("dist_to_toc"), "clb_tas", "clb_burn");
    if (number("tod") == 0) add(number("dist_to_tod"), "crz_tas", "crz_burn");
    add(1e9, "des_tas", "des_burn");
    return phases;
}

// Adds up what the way between two distances takes in a wind, phase by phase.
void Spend(const std::vector<Phase>& phases, double from, double to, double wind, FixRow& row) {
    constexpr double kSlowest = 60;  // kt
    for (const Phase& phase : phases) {
        const double end = std::clamp(phase.until, from, to);
        const double hours = (end - from) / std::max(phase.tas + wind, kSlowest);
        row.seconds += hours * 3600;
        row.fuel -= hours * phase.flow;
        from = end;
    }
}

bool IsFlownTo(const RouteFix& fix) {
    constexpr const char* kMissedApproach = "MAF";
    return fix.ident != "DISCO" && fix.ident != "THEN" && fix.ident != "VECTORS" &&
           fix.role != kMissedApproach;
}

// A constraint of a leg: what is limited, and how an altitude is.
constexpr int kAltitudeBit = 1, kSpeedBit = 2;
enum RestrictionType { kAt = 0, kAtOrAbove = 1, kAtOrBelow = 2 };

RouteFix ReadFix(const Session& session, int leg) {
    const std::string path = "FlightPlan[" + std::to_string(leg) + "].";
    const auto number = [&](const char* field) { return ModuleNumber(session, path + field); };
    RouteFix fix{ReadVariable(session, path + "ident"),
                 ReadVariable(session, path + "via"),
                 ReadVariable(session, path + "appr_wpt_type"),
                 number("lat"),
                 number("lon"),
                 number("alt"),
                 number("ias_restr"),
                 number("along_wind")};
    const int code = static_cast<int>(number("restr_code")), type = static_cast<int>(number("restr_type"));
    const double altitude = number("alt_restr");
    if ((code & kSpeedBit) != 0) fix.fastest = std::max(fix.ias, 0.0);
    if ((code & kAltitudeBit) == 0) return fix;
    const double one = altitude > 0 ? altitude : number("block_above");
    const double other = altitude > 0 ? altitude : number("block_below");
    if (altitude <= 0 || type != kAtOrBelow) fix.lowest = std::max(std::min(one, other), 0.0);
    if (altitude <= 0 || type != kAtOrAbove) fix.highest = std::max(one, other);
    return fix;
}

bool IsSame(const RouteFix& a, const RouteFix& b) {
    return a.ident == b.ident && a.lat == b.lat && a.lon == b.lon;
}

// The fix flown to is watched from the time that it is one.
void TakeUpFix(const Session& session, FlightLog& log) {
    const RouteFix to = ReadFix(session, static_cast<int>(ModuleNumber(session, "stpos")));
    if (!IsFlownTo(to)) return;
    if (!log.passing.empty() && IsSame(log.passing.back().fix, to)) return;
    PassedFix& fix = log.passing.emplace_back();
    fix.fix = to;
    const auto planned = std::find_if(log.forecast.begin(), log.forecast.end(),
                                      [&](const FixRow& row) { return row.ident == to.ident; });
    if (planned != log.forecast.end()) fix.plan = *planned;
}

// How far off a time was, percent of the time since the forecast.
void JudgeTime(const PassedFix& fix, FlightLog& log) {
    const double ahead = fix.plan.seconds - log.forecast_seconds;
    if (!log.at_top_of_climb || fix.plan.seconds <= 0 || ahead <= 0) return;
    log.worst_time = std::max(log.worst_time, std::fabs(fix.actual.seconds - fix.plan.seconds) / ahead * 100);
}

}  // namespace

std::vector<RouteFix> FixesAhead(const Session& session) {
    std::vector<RouteFix> fixes;
    const int first = static_cast<int>(ModuleNumber(session, "stpos"));
    const int last = static_cast<int>(ModuleNumber(session, "fp_cnt"));
    double wind = 0;
    for (int leg = std::max(first - 1, 0); leg <= last; ++leg) {
        const RouteFix fix = ReadFix(session, leg);
        if (!IsFlownTo(fix)) continue;
        if (leg >= first) {
            fixes.push_back(fix);
            fixes.back().wind = wind;
        }
        wind = fix.wind;  // stands with the fix that its leg begins at
    }
    return fixes;
}

double ModuleNumber(const Session& session, const std::string& path) {
    return std::atof(ReadVariable(session, path).c_str());
}

double AircraftNumber(const char* name) {
    double value = 0;
    AircraftValue(name, value);
    return value;
}

double DistanceNm(double lat1, double lon1, double lat2, double lon2) {
    const double north = std::sin((lat2 - lat1) / 2 * kRad), east = std::sin((lon2 - lon1) / 2 * kRad);
    const double square = north * north + std::cos(lat1 * kRad) * std::cos(lat2 * kRad) * east * east;
    return 2 * std::asin(std::min(1.0, std::sqrt(square))) / kRad * 60;
}

void PrintFlightHeading(const Session& session, const std::string& route) {
    std::printf("%s  %s  %s\n\n", ReadVariable(session, "aircraft").c_str(),
                ReadVariable(session, "airac_cycle_text").c_str(), route.c_str());
}

void PrintProgress(const std::string& what) {
    std::printf("  %s  %6.0f ft  %3.0f kt  %s\n", DurationText(world.seconds).c_str(), AircraftNumber("alt"),
                AircraftNumber("ias"), what.c_str());
    std::fflush(stdout);
}

void TakeForecast(const Session& session, FlightLog& log) {
    log.forecast.clear();
    log.forecast_seconds = world.seconds;
    const std::vector<Phase> phases = PhasesAhead(session);
    double lat = AircraftNumber("lat"), lon = AircraftNumber("lon"), distance = 0;
    FixRow row{"", world.seconds, 0, 0, AircraftNumber("fuel")};
    for (const RouteFix& fix : FixesAhead(session)) {
        const double leg = DistanceNm(lat, lon, fix.lat, fix.lon);
        Spend(phases, distance, distance + leg, fix.wind, row);
        distance += leg;
        lat = fix.lat;
        lon = fix.lon;
        row.ident = fix.ident;
        row.altitude = fix.altitude;
        row.ias = fix.ias;
        log.forecast.push_back(row);
    }
    log.planned_fuel = row.fuel;
    log.passing.clear();
}

void WatchFixes(const Session& session, FlightLog& log, bool sequenced) {
    if (sequenced && !log.passing.empty()) {
        log.passing.back().sequenced = true;
        log.passing.back().cross_track = ModuleNumber(session, "xtk");
        log.passing.back().turn_altitude = AircraftNumber("alt");
        PrintProgress(log.passing.back().fix.ident);
    }
    TakeUpFix(session, log);
    constexpr double kBehind = 0.2;  // nm farther than it has been
    for (PassedFix& fix : log.passing) {
        const double dist =
            DistanceNm(AircraftNumber("lat"), AircraftNumber("lon"), fix.fix.lat, fix.fix.lon);
        if (dist < fix.nearest) {
            fix.nearest = dist;
            fix.actual = {fix.fix.ident, world.seconds, AircraftNumber("alt"), AircraftNumber("ias"),
                          AircraftNumber("fuel")};
        } else if (fix.sequenced && dist > fix.nearest + kBehind) {
            JudgeTime(fix, log);
            log.passed.push_back(fix);
        }
    }
    std::erase_if(log.passing, [&](const PassedFix& fix) {
        return !log.passed.empty() && IsSame(log.passed.back().fix, fix.fix);
    });
}

void PrintLog(const FlightLog& log) {
    const auto planned = [](double value, const char* form) {
        char text[32] = "-";
        if (value > 0) std::snprintf(text, sizeof text, form, value);
        return std::string(text);
    };
    std::printf("\n%10s  %-8s %15s %15s %11s %17s %7s\n", "", "", "TIME", "ALTITUDE", "IAS", "FUEL", "");
    std::printf("  %-8s  %-8s %7s  (plan) %7s  (plan) %4s (plan) %8s  (plan)  %6s\n", "FIX", "VIA", "", "",
                "", "", "XTK");
    for (const auto& [fix, actual, plan, nearest, cross_track, turn_altitude, sequenced] : log.passed)
        std::printf("  %-8s  %-8s %7s %8s %6.0f %8s %4.0f %6s %8.0f %8s  %6.2f\n", actual.ident.c_str(),
                    fix.via.c_str(), DurationText(actual.seconds).c_str(),
                    plan.seconds > 0 ? DurationText(plan.seconds).c_str() : "-", actual.altitude,
                    planned(plan.altitude, "%.0f").c_str(), actual.ias, planned(plan.ias, "%.0f").c_str(),
                    actual.fuel, planned(plan.fuel, "%.0f").c_str(), cross_track);
}

}  // namespace host
