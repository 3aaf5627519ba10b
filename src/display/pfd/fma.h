#pragma once

#include <string>

#include "display/pfd/pfd_view.h"
#include "state/autoflight.h"

// The flight mode annunciator. Its texts serve the head-up display too.

/// A column of it: what is active above, what is armed below; empty where there is nothing to tell.
struct ModeTexts {
    std::string active, armed;
};
/// Autothrottle, with "L-" or "R-" before it while only one side is armed.
ModeTexts AutothrottleTexts();
ModeTexts RollTexts();
ModeTexts PitchTexts();

/// Where a column stands, and its box around what is new.
struct ModeColumn {
    ModeTexts (*texts)();
    double middle;
    int AutoflightState::*timer;
    int box_x, box_width;
};
constexpr ModeColumn kModeColumns[] = {{AutothrottleTexts, -58, &AutoflightState::fma_at_timer, -80, 45},
                                       {RollTexts, -2, &AutoflightState::fma_roll_timer, -27, 50},
                                       {PitchTexts, 54, &AutoflightState::fma_pitch_timer, 32, 45}};

/// What flies, and how well it can land; empty when nothing does. `director` tells whether the flight
/// director of whom it is shown to is on.
struct AutoflightStatus {
    std::string_view text;
    bool caution;
    bool boxed;  // it is new
};
AutoflightStatus StatusOfAutoflight(bool director);

/// The three columns, boxed for ten seconds after a change.
void DrawFma(const PfdView& view);
void DrawAutoflightStatus(const PfdView& view);
