#include "state/sound.h"

SoundState sound;

namespace {
constexpr Variable kSoundRows[] = {
    {"event_cue", &sound.event_cue},
    {"event_cue_next", &sound.event_cue_next},
    {"alert_aural", &sound.alert_aural},
    {"siren_running", &sound.siren_running},
    {"beeper_running", &sound.beeper_running},
    {"terrain_aural_request", &sound.terrain_aural_request},
    {"starting_engs_cue", &sound.starting_engs_cue},
    {"env_sound_request", &sound.env_sound_request},
    {"misc_sound_request", &sound.misc_sound_request},
    {"host_sound_on", &sound.host_sound_on},
    {"slew_active", &sound.slew_active},
    {"dsound_ok", &sound.dsound_ok},
    {"sounds_to_stop", &sound.sounds_to_stop},
    {"env_battery_timer", &sound.env_battery_timer},
    {"stby_sound_timer", &sound.env_battery_timer},  // a further name of the same
    {"env_quiet_start_timer", &sound.env_quiet_start_timer},
    {"env_quiet_timer", &sound.env_quiet_timer},
    {"env_loud_timer", &sound.env_loud_timer},
};
}  // namespace

const std::span<const Variable> kSoundVariables = kSoundRows;
