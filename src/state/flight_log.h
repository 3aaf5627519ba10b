#pragma once

#include <span>

#include "state/variable.h"

/// What the flight log remembers between its steps. Written by fmc/; a new route sets the phase back.
struct FlightLogState {
    int fplog_mode = -1;          // phase of the flight, -1 not begun, 0 loading to 11 ended
    double start_fuel = 0;        // lb, at the start of the flight
    double landing_fltsecs = 0;   // s of flight at the landing, 0 = not yet
    double last_row_secs = 0;     // s, absolute host time of the last row
    double last_row_alt = 0;      // ft
    double descending_since = 0;  // s, absolute host time; 0 = not descending out of the cruise
    double stopped_since = 0;     // s, absolute host time; 0 = moving
};

extern FlightLogState flight_log;
extern const std::span<const Variable> kFlightLogVariables;
