#pragma once

#include "display/pfd/pfd_view.h"

// The speed side: the tape with its limits, bugs and pointer, and the readouts above and below it.

constexpr double kUnitsPerKnot = 1.5;
constexpr int kTapeLeft = 10, kTapeWidth = 75;  // what the tape may draw on, from the speeds' left
/// The speed in the middle of the tape, which stands still below 30 kt.
double ShownSpeed();
/// Offset of a speed on the tape, down positive, kept within the tape.
double SpeedOffset(double speed);

void DrawSpeedTape(const PfdView& view);
/// The selected speed, and where the present trend leads.
void DrawSpeedBugs(const PfdView& view);
void DrawSpeedPointer(const PfdView& view);
/// The selected speed: the window's, or in VNAV the Mach number that the flight management computer flies.
void DrawSelectedSpeed(const PfdView& view);
void DrawMach(const PfdView& view);
