#pragma once

#include <span>

#include "state/variable.h"

/// Requests to the sound step, which takes them once a frame; 0 = none.
struct SoundState {
    int event_cue = 0;
    int event_cue_next = 0;  // one further cue, taken after event_cue
    int alert_aural = 0;
    int terrain_aural_request = 0;
    int env_sound_request = 0;
    int misc_sound_request = 0;
    int host_sound_on = 1;  // the host's own sound is switched on
    int slew_active = 0;
    int dsound_ok = 0;  // the sound device is set up
};

extern SoundState sound;
extern const std::span<const Variable> kSoundVariables;
