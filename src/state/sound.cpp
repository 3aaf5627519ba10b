#include "state/sound.h"

SoundState sound;

namespace {
constexpr Variable kRows[] = {
    {"event_cue", &sound.event_cue},
    {"event_cue_next", &sound.event_cue_next},
    {"alert_aural", &sound.alert_aural},
    {"terrain_aural_request", &sound.terrain_aural_request},
    {"env_sound_request", &sound.env_sound_request},
    {"misc_sound_request", &sound.misc_sound_request},
    {"host_sound_on", &sound.host_sound_on},
    {"slew_active", &sound.slew_active},
    {"dsound_ok", &sound.dsound_ok},
};
}  // namespace

const std::span<const Variable> kSoundVariables = kRows;
