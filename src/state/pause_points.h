#pragma once

#include <span>

#include "state/variable.h"

/// What has been done already where the simulation pauses or slows down: once each per descent and per
/// arrival.
struct PausePoints {
    int tod_pause_done = 0, tod_rate_done = 0;
    int dest_pause_done = 0, dest_rate_done = 0;
};

extern PausePoints pause_points;
extern const std::span<const Variable> kPausePointVariables;
