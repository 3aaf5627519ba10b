#pragma once

#include <string>

#include "display/pfd/pfd_view.h"

// The speed side: the tape with its limits, bugs and pointer, and the readouts above and below it.

constexpr double kUnitsPerKnot = 1.5;
constexpr int kTapeLeft = 10, kTapeWidth = 75;  // what the tape may draw on, from the speeds' left
/// The speed in the middle of the tape, which stands still below 30 kt.
double ShownSpeed();
/// Offset of a speed on the tape, down positive, kept within the tape.
double SpeedOffset(double speed);

constexpr double kFastestShown = 9000, kSlowestShown = 30;  // kt
constexpr double kSeenKnots = 70;                           // above and below the middle
/// The bands at both ends of what may be flown, which stand in the air only (kt).
struct SpeedLimits {
    double high;
    double dashes;  // of the high band
    bool high_seen, low_seen;
};
SpeedLimits LimitsOfSpeed();
bool IsOffGround();
/// Offset at which the trend leads, kept within the tape.
double TrendOffset();
/// It differs enough from the speed to deserve an arrow head.
bool IsTrendMarked();
/// The selected speed and the Mach number as they are read out. A Mach number is selected where `is_mach`.
struct SelectedSpeed {
    std::string text;
    bool is_mach;
};
SelectedSpeed SelectedSpeedShown();

void DrawSpeedTape(const PfdView& view);
/// The selected speed, and where the present trend leads.
void DrawSpeedBugs(const PfdView& view);
void DrawSpeedPointer(const PfdView& view);
/// The selected speed: the window's, or in VNAV the Mach number that the flight management computer flies.
void DrawSelectedSpeed(const PfdView& view);
void DrawMach(const PfdView& view);
