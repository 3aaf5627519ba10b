#pragma once

#include <string>
#include <vector>

#include "host/session.h"

// The log of `tz900 fly`: each fix with what had been predicted for it and what came of it. The predictions
// are those of the flight plan, taken at lift-off and again at the top of climb.

namespace host {

/// What is expected, or was, over one fix. Seconds of the run, ft, kt IAS, lb; 0 or less = not known.
struct FixRow {
    std::string ident;
    double seconds = 0, altitude = 0, ias = 0, fuel = 0;
};

/// A fix of the plan that is flown to; the way after a missed approach and the plan's markers are none.
struct RouteFix {
    std::string ident, via, role;  // the role in an approach
    double lat = 0, lon = 0;
    double altitude = 0, ias = 0;                 // predicted there, ft and kt; below 0 = none
    double wind = 0;                              // kt, predicted along the way to it
    double lowest = 0, highest = 0, fastest = 0;  // what it asks for, ft and kt; 0 = nothing
};

/// A fix that is being passed, or has been.
struct PassedFix {
    RouteFix fix;
    FixRow actual, plan;       // actual where the aircraft is, or was, nearest
    double nearest = 1e9;      // nm
    double cross_track = 0;    // nm, where its turn begins
    double turn_altitude = 0;  // ft, there
    bool sequenced = false;    // the plan has moved on
};

struct FlightLog {
    std::vector<FixRow> forecast;  // of the fixes ahead, in order
    double forecast_seconds = 0;   // when the forecast was made
    bool at_top_of_climb = false;  // the forecast in force was made there
    std::vector<PassedFix> passing, passed;
    double start_fuel = 0, touchdown_fuel = 0, planned_fuel = 0;  // lb; planned for the last fix
    // since the top of climb: greatest error of a time over a fix, percent of the time since the forecast
    double worst_time = 0;
};

/// From the TO fix on.
std::vector<RouteFix> FixesAhead(const Session& session);

void PrintFlightHeading(const Session& session, const std::string& route);

/// One line of progress: the time, where the aircraft is, and what has happened.
void PrintProgress(const std::string& what);

/// Makes the forecast anew from the flight plan as it stands.
void TakeForecast(const Session& session, FlightLog& log);

/// Looks at the fix flown to and at those whose turn is being flown, once a second; `sequenced` tells that
/// the plan has just moved on. A fix is taken down when the aircraft is past it.
void WatchFixes(const Session& session, FlightLog& log, bool sequenced);

void PrintLog(const FlightLog& log);

/// A number of the aircraft as AircraftValue names it, and one of the module.
double AircraftNumber(const char* name);
double ModuleNumber(const Session& session, const std::string& path);

/// Great-circle distance, nm.
double DistanceNm(double lat1, double lon1, double lat2, double lon2);

}  // namespace host
