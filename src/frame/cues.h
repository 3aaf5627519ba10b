#pragma once

#include "state/sound.h"

// Cues of the control channel, by their number in the sound step's catalogue.
constexpr int kCueFuelOn = 12;
constexpr int kCueKeyClick = 14;
constexpr int kCueParkBrake = 201;

/// Asks for a control sound. One stands at a time: a later request takes an earlier one's place.
inline void RequestCue(int cue) {
    sound.event_cue = cue;
}
