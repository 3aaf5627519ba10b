#include "state/flight_log.h"

FlightLogState flight_log;

namespace {
constexpr Variable kFlightLogRows[] = {
    {"fplog_mode", &flight_log.fplog_mode},
    {"fplog_start_fuel", &flight_log.start_fuel},
    {"fplog_landing_fltsecs", &flight_log.landing_fltsecs},
    {"last_row_secs", &flight_log.last_row_secs},
    {"last_row_alt", &flight_log.last_row_alt},
    {"descending_since", &flight_log.descending_since},
    {"stopped_since", &flight_log.stopped_since},
};
}  // namespace

const std::span<const Variable> kFlightLogVariables = kFlightLogRows;
