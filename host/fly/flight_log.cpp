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

void PrintLogHeading(const Session& session, const std::string& route) {
    std::printf("%s  %s  %s\n\n", ReadVariable(session, "aircraft").c_str(),
                ReadVariable(session, "airac_cycle_text").c_str(), route.c_str());
    std::printf("                    TIME            ALTITUDE        IAS             FUEL\n");
    std::printf("  FIX     VIA       ACTUAL (PLAN)   ACTUAL (PLAN)   ACTUAL (PLAN)   ACTUAL (PLAN)    XTK\n");
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
    const std::string fix = ReadVariable(session, "PositionReports[1].leg.ident");
    const auto found = std::find_if(log.forecast.begin(), log.forecast.end(),
                                    [&](const FixRow& row) { return row.ident == fix; });
    const auto planned = [](double value, const char* form) {
        char text[32] = "-";
        if (value > 0) std::snprintf(text, sizeof text, form, value);
        return std::string(text);
    };
    FixRow plan;
    if (found != log.forecast.end()) {
        plan = *found;
        log.forecast.erase(log.forecast.begin(), found + 1);
    }
    std::printf(
        "  %-7s %-8s %7s (%s)  %6.0f (%s)  %4.0f (%s)  %7.0f (%s)  %5.2f\n", fix.c_str(),
        ReadVariable(session, "PositionReports[1].leg.via").c_str(), DurationText(world.seconds).c_str(),
        plan.seconds > 0 ? DurationText(plan.seconds).c_str() : "-", AircraftNumber("alt"),
        planned(plan.altitude, "%.0f").c_str(), AircraftNumber("ias"), planned(plan.ias, "%.0f").c_str(),
        AircraftNumber("fuel"), planned(plan.fuel, "%.0f").c_str(), ModuleNumber(session, "xtk"));
    std::fflush(stdout);
    ++log.fixes;
    const double ahead = plan.seconds - log.forecast_seconds;
    if (log.at_top_of_climb && plan.seconds > 0 && ahead > 0)
        log.worst_time = std::max(log.worst_time, std::fabs(world.seconds - plan.seconds) / ahead * 100);
}

}  // namespace host
