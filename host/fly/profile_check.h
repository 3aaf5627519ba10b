#pragma once

#include <string>

#include "host/fly/flight_log.h"
#include "host/session.h"

// How well a flight keeps to its plan: constraints where the fixes are passed, the path of the descent, and
// what had been predicted.

namespace host {

/// The descent flown by VNAV, looked at once a second.
struct DescentCheck {
    int seconds = 0, near_path = 0;  // all of it, and within 250 ft of the path
};

void StepDescentCheck(const Session& session, DescentCheck& check);

void PrintDescentCheck(const DescentCheck& check);
void PrintConstraintCheck(const FlightLog& log);
/// Times and fuel against the forecast of the top of climb.
void PrintForecastCheck(const FlightLog& log);

}  // namespace host
