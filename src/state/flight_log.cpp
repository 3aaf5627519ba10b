#include "state/flight_log.h"

FlightLogState flight_log;

namespace {
constexpr Variable kRows[] = {
    {"fplog_start_fuel", &flight_log.start_fuel},
    {"fplog_landing_fltsecs", &flight_log.landing_fltsecs},
};
}  // namespace

const std::span<const Variable> kFlightLogVariables = kRows;
