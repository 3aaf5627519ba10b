#pragma once

#include "display/pfd/pfd_view.h"

// The rolling digits of speeds and altitudes, as a mechanical counter turns them: a digit moves while the one
// behind it goes from its last place to its first.

/// How a digit of `value` at a decimal place (10, 100 ...) stands on its drum: it rolls while `value` is in
/// the last `step` before the next one.
struct DrumDigit {
    int digit = 0;      // 0 to 9
    double rolled = 0;  // of the way to the next one, 0 to 1
};
DrumDigit DigitOnDrum(double value, double place, double step);

/// Where and how large a counter's digits stand.
struct DrumFace {
    Graphics& graphics;
    float size;
    Rgb colour;
};

/// Such a digit. A place that is blank now shows nothing until it rolls.
void DrawDrum(const DrumFace& face, double x, double value, double place, double step, bool blank = false);

/// The units, which roll all the time.
void DrawUnitsDrum(const DrumFace& face, double x, double value);
