#pragma once

#include "display/pfd/pfd_view.h"

// The altitude side: the tape with the landing altitude, bug, trend and pointer, and the readouts about it.

constexpr double kUnitsPerFoot = 0.2455, kSeenFeet = 500;  // seen above and below the middle
/// The altitude in the middle of the tape. What is no number, or none of this world, stands at an end of what
/// can be drawn.
double ShownAltitude();
/// Feet by which the altitude will have changed in six seconds.
double AltitudeTrend();
/// The last drum: the twenty feet in its middle, how far it has turned, and how far its steps are apart.
struct TwentyDrum {
    int step;              // 0 to 4
    double offset, pitch;  // units
};
TwentyDrum TwentyOnDrum(double altitude);
/// What stands on it; any step.
std::string_view TwentyText(int step);

/// Offset of an altitude on the tape, down positive, kept within the tape.
double AltitudeOffset(double altitude);

void DrawAltitudeTape(const PfdView& view);
void DrawAltitudePointer(const PfdView& view);
/// Altitudes in metres, where the pilot wants them.
void DrawMetres(const PfdView& view);
void DrawSelectedAltitude(const PfdView& view);
