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
    double until;     // nm from the aircraft
    double speed;     // kt over the ground
    double per_mile;  // lb
};

std::vector<Phase> PhasesAhead(const Session& session) {
    const auto number = [&](const char* name) { return ModuleNumber(session, name); };
    const double factor = 1 + number("perf_factor");
    std::vector<Phase> phases;
    const auto add = [&](double until, const char* tas, const char* wind, const char* burn) {
        const double speed = number(tas) + number(wind);
        phases.push_back({until, std::max(speed, 60.0), number(burn) * factor});
    };
    if (number("toc") == 0) add(number("dist_to_toc"), "clb_tas", "clb_wind", "clb_burn_per_nm");
    if (number("tod") == 0) add(number("dist_to_tod"), "crz_tas", "crz_wind", "crz_burn_per_nm");
    add(1e9, "des_tas", "des_wind", "des_burn_per_nm");
    return phases;
}

// Adds up what a distance takes, phase by phase.
void Spend(const std::vector<Phase>& phases, double distance, double& seconds, double& fuel) {
    double from = 0;
    for (const Phase& phase : phases) {
        const double miles = std::clamp(distance, from, std::max(phase.until, from)) - from;
        seconds += miles / phase.speed * 3600;
        fuel -= miles * phase.per_mile;
        from = std::max(phase.until, from);
    }
}

bool IsFlownTo(const std::string& ident, const std::string& via) {
    return ident != "DISCO" && ident != "THEN" && ident != "VECTORS" && via != "MISSED APPR";
}

}  // namespace

std::vector<RouteFix> FixesAhead(const Session& session) {
    std::vector<RouteFix> fixes;
    const int last = static_cast<int>(ModuleNumber(session, "fp_cnt"));
    for (int leg = static_cast<int>(ModuleNumber(session, "stpos")); leg <= last; ++leg) {
        const std::string path = "FlightPlan[" + std::to_string(leg) + "].";
        const std::string ident = ReadVariable(session, path + "ident");
        if (!IsFlownTo(ident, ReadVariable(session, path + "via"))) continue;
        fixes.push_back({ident, ModuleNumber(session, path + "lat"), ModuleNumber(session, path + "lon"),
                         ModuleNumber(session, path + "alt"), ModuleNumber(session, path + "ias_restr")});
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
    log.forecast_fuel = AircraftNumber("fuel");
    const std::vector<Phase> phases = PhasesAhead(session);
    double lat = AircraftNumber("lat"), lon = AircraftNumber("lon"), distance = 0;
    for (const RouteFix& fix : FixesAhead(session)) {
        distance += DistanceNm(lat, lon, fix.lat, fix.lon);
        lat = fix.lat;
        lon = fix.lon;
        FixRow row{fix.ident, world.seconds, fix.altitude, fix.ias, log.forecast_fuel};
        Spend(phases, distance, row.seconds, row.fuel);
        log.last_forecast_fuel = row.fuel;
        log.forecast.push_back(row);
    }
}

void LogFix(const Session& session, FlightLog& log) {
    PassedFix fix;
    fix.actual = {ReadVariable(session, "PositionReports[1].leg.ident"), world.seconds, AircraftNumber("alt"),
                  AircraftNumber("ias"), AircraftNumber("fuel")};
    fix.via = ReadVariable(session, "PositionReports[1].leg.via");
    fix.cross_track = ModuleNumber(session, "xtk");
    const auto found = std::find_if(log.forecast.begin(), log.forecast.end(),
                                    [&](const FixRow& row) { return row.ident == fix.actual.ident; });
    if (found != log.forecast.end()) {
        fix.plan = *found;
        log.forecast.erase(log.forecast.begin(), found + 1);
    }
    const double ahead = fix.plan.seconds - log.forecast_seconds;
    if (log.at_top_of_climb && fix.plan.seconds > 0 && ahead > 0)
        log.worst_time =
            std::max(log.worst_time, std::fabs(fix.actual.seconds - fix.plan.seconds) / ahead * 100);
    PrintProgress(fix.actual.ident);
    log.passed.push_back(std::move(fix));
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
    for (const auto& [via, actual, plan, cross_track] : log.passed)
        std::printf("  %-8s  %-8s %7s %8s %6.0f %8s %4.0f %6s %8.0f %8s  %6.2f\n", actual.ident.c_str(),
                    via.c_str(), DurationText(actual.seconds).c_str(),
                    plan.seconds > 0 ? DurationText(plan.seconds).c_str() : "-", actual.altitude,
                    planned(plan.altitude, "%.0f").c_str(), actual.ias, planned(plan.ias, "%.0f").c_str(),
                    actual.fuel, planned(plan.fuel, "%.0f").c_str(), cross_track);
}

}  // namespace host
