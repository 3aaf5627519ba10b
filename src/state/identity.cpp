#include "state/identity.h"

AircraftIdentity identity;

namespace {
constexpr Variable kIdentityRows[] = {
    {"aircraft", &identity.aircraft},
    {"registration", &identity.registration},
    {"selcal", &identity.selcal},
    {"aircraft_model", &identity.aircraft_model},
    {"aircraft_sim_name", &identity.aircraft_sim_name},
    {"engine_model", &identity.engine_model},
    {"airline_code", &identity.airline_code},
    {"airline_voice_folder", &identity.airline_voice_folder},
    {"panel_hires", &identity.panel_hires},
    {"aircraft_identified", &identity.aircraft_identified},
    {"title_unknown", &identity.title_unknown},
    {"identify_attempts", &identity.identify_attempts},
};
}  // namespace

const std::span<const Variable> kIdentityVariables = kIdentityRows;
