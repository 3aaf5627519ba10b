#pragma once

#include <span>

#include "state/variable.h"

constexpr int kStartingEngines = 0x21;

/// Requests to the sound step, which takes them once a frame; 0 = none. Timers of the sounds that follow the
/// electrical power.
struct SoundState {
    int event_cue = 0;
    int event_cue_next = 0;  // one further cue, taken after event_cue
    int alert_aural = 0;
    int siren_running = 0, beeper_running = 0;  // what the warning channel holds
    int terrain_aural_request = 0;
    int env_sound_request = 0;
    int misc_sound_request = 0;
    int host_sound_on = 1;  // the host's own sound is switched on
    int slew_active = 0;
    int dsound_ok = 0;          // the sound device is set up
    int starting_engs_cue = 0;  // kStartingEngines asks once for the callout
    int sounds_to_stop = 0;     // bit N asks to stop sound N; of those that loop: 1, 25, 28, 29
    // the flight deck's surroundings, s left; 0 = not running
    int env_battery_timer = 0;      // of the loop on battery power
    int env_quiet_start_timer = 0;  // until the fans start up
    int env_quiet_timer = 0;        // until the quiet loop
    int env_loud_timer = 0;         // until the loud loop
};

extern SoundState sound;
extern const std::span<const Variable> kSoundVariables;
