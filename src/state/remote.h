#pragma once

#include <span>

#include "state/variable.h"

/// A picture that a remote peer shows: that of the lower unit, with both CDUs, or of the captain's tablet.
struct RemoteImage {
    int due = 0;        // the next picture that is painted goes to the peer
    int byte_size = 0;  // as announced: only a surface of this size is copied. 0 = none
    // of the surface that was copied last, in pixels, in which the peer tells touches; before, the frame's
    int width, height;
};

/// The bridge to a program that shows two screens in windows of its own and presses their keys. Opened by
/// DelayedStart.
struct RemoteState {
    int remote_ready = 0;  // all shared memory stands
    RemoteImage cdu = {.width = 564, .height = 424};
    RemoteImage efb = {.width = 340, .height = 448};
};

extern RemoteState remote;
extern const std::span<const Variable> kRemoteVariables;
