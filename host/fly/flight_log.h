#pragma once

#include <string>
#include <vector>

#include "host/session.h"

// The log of `tz900 fly`: each fix with what had been predicted for it and what came of it. The predictions
// are those of the flight plan, taken at lift-off and again at the top of climb.

namespace host {

/// What is expected, or was, at one fix. Seconds of the run, ft, kt IAS, lb; 0 or less = not known.
struct FixRow {
    std::string ident;
    double seconds = 0, altitude = 0, ias = 0, fuel = 0;
};

/// A fix that has been passed.
struct PassedFix {
    std::string via;
    FixRow actual, plan;
    double cross_track = 0;  // nm
};

struct FlightLog {
    std::vector<FixRow> forecast;  // of the fixes ahead, in order
    double start_fuel = 0;         // lb
    double forecast_seconds = 0;   // when the forecast was made
    double forecast_fuel = 0;
    bool at_top_of_climb = false;  // the forecast in force was made there
    std::vector<PassedFix> passed;
    // since the top of climb: greatest error of a time over a fix, percent of the time since the forecast
    double worst_time = 0;
    double last_forecast_fuel = 0;
};

/// A fix of the plan that is flown to; the way after a missed approach and the plan's markers are none.
struct RouteFix {
    std::string ident;
    double lat = 0, lon = 0;
    double altitude = 0, ias = 0;  // predicted there, ft and kt; below 0 = none
};
/// From the TO fix on.
std::vector<RouteFix> FixesAhead(const Session& session);

void PrintFlightHeading(const Session& session, const std::string& route);

/// One line of progress: the time, where the aircraft is, and what has happened.
void PrintProgress(const std::string& what);

/// Makes the forecast anew from the flight plan as it stands.
void TakeForecast(const Session& session, FlightLog& log);

/// Takes down the fix that has just been passed.
void LogFix(const Session& session, FlightLog& log);

void PrintLog(const FlightLog& log);

/// A number of the aircraft as AircraftValue names it, and one of the module.
double AircraftNumber(const char* name);
double ModuleNumber(const Session& session, const std::string& path);

/// Great-circle distance, nm.
double DistanceNm(double lat1, double lon1, double lat2, double lon2);

}  // namespace host
