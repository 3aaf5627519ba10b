#pragma once

#include "state/sound.h"

// Cues of the control channel, by their number in the sound step's catalogue.
constexpr int kCueSwitch = 2;  // this one and the next are silent: the model clicks itself
constexpr int kCueButton = 3;
constexpr int kCueSign = 4;
constexpr int kCueExternalPower = 9;
constexpr int kCueFuelOn = 12;
constexpr int kCueKeyClick = 14;
constexpr int kCueGuardOpen = 16;
constexpr int kCueGuardShut = 17;
constexpr int kCueCoverOpen = 18;
constexpr int kCueCoverShut = 19;
constexpr int kCueFansStart = 27;
constexpr int kCueParkBrake = 201;

// Loops of the flight deck's surroundings.
constexpr int kLoopBattery = 25, kLoopQuiet = 28, kLoopLoud = 29;

/// Asks for a control sound. One stands at a time: a later request takes an earlier one's place.
inline void RequestCue(int cue) {
    sound.event_cue = cue;
}

// The aurals of crew alerting, and the channel that they share.
constexpr int kAuralBeeper = 1, kAuralSiren = 5, kAuralAutopilotDisc = 6, kAuralFireBell = 13;
constexpr int kWarningChannel = 1;

/// Asks for an aural. One stands at a time, as with the cues.
inline void RequestAural(int aural) {
    sound.alert_aural = aural;
}

/// Asks for silence on the warning channel.
inline void StopWarningSound() {
    sound.siren_running = sound.beeper_running = 0;
    sound.sounds_to_stop |= 1 << kWarningChannel;
}

/// Asks for one of the loops of the surroundings.
inline void RequestLoop(int loop) {
    sound.env_sound_request = loop;
}

/// Asks for the end of a loop, whether it runs or has only been asked for.
inline void StopLoop(int loop) {
    if (sound.env_sound_request == loop) sound.env_sound_request = 0;
    sound.sounds_to_stop |= 1 << loop;
    if (loop == kLoopBattery) sound.env_battery_timer = 0;
    if (loop == kLoopQuiet) sound.env_quiet_timer = 0;
    if (loop == kLoopLoud) sound.env_loud_timer = 0;
}
