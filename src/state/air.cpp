#include "state/air.h"

AirState air;

namespace {
constexpr Variable kAirRows[] = {
    {"flt_deck_temp_target", &air.flt_deck_temp_target},
    {"cabin_temp_target", &air.cabin_temp_target},
    {"cargo_temp_target", &air.cargo_temp_target},
    {"cabin_temp", &air.cabin_temp},
    {"flt_deck_temp", &air.flt_deck_temp},
    {"fwd_cargo_temp", &air.fwd_cargo_temp},
    {"aft_cargo_temp", &air.aft_cargo_temp},
    {"bulk_cargo_temp", &air.bulk_cargo_temp},
    {"cabin_temp_timer", &air.cabin_temp_timer},
    {"flt_deck_temp_timer", &air.flt_deck_temp_timer},
    {"fwd_cargo_temp_timer", &air.fwd_cargo_temp_timer},
    {"aft_cargo_temp_timer", &air.aft_cargo_temp_timer},
    {"bulk_cargo_temp_timer", &air.bulk_cargo_temp_timer},
};
}  // namespace

const std::span<const Variable> kAirVariables = kAirRows;
