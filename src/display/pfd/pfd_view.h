#pragma once

#include <initializer_list>
#include <string_view>

#include "display/nd/nd_frame.h"
#include "paint/painter.h"
#include "state/side.h"

// What the pieces of a primary flight display share: where they stand, whose data they show, what is known,
// and the few words of drawing that only they use. Coordinates are offsets from the middle of the attitude, y
// down, and never cut to whole units, so that tapes and horizon move smoothly.

/// One picture of the display. The frame's origin is the middle of the attitude.
struct PfdView {
    Graphics& graphics;
    int side;     // whose data
    bool narrow;  // beside a content of a whole half
    int left;     // x at which the speeds begin
};

/// Whether there is anything to show: attitude, speeds and altitudes come up ten seconds after power.
bool IsPfdLit();
bool IsOnCaptains(const PfdView& view);

constexpr double kUnitsPerDegree = 3;  // of pitch
/// Where the horizon stands, below the middle.
double HorizonOffset();

/// The altimeter's setting is the standard pressure.
bool IsBaroStandard();
constexpr double kLowestMachShown = 0.4;
constexpr int kMinimumsShown = 0, kMinimumsAlert = 1;  // of minimums_mode; from 2 on hidden

/// The on half of a blink, 8 of 18 ticks.
bool IsBlinkOn();

/// A value between two others; what is no number is the lower one.
constexpr double Bounded(double value, double low, double high) {
    return !(value > low) ? low : value < high ? value : high;
}

constexpr char kDegreeSign = '\xb0';  // of the ANSI code page
constexpr Rgb kPfdRed{255, 0, 0}, kWarningRed{250, 0, 0};
constexpr double kTapeReach = 100;  // units of a tape above and below its middle

/// The translucent grey of the tapes, and the pen around them.
Brush TapeFill();
Pen TapeFrame();
/// Words one under the other about x, 8 apart, the first one's middle at y: "SPD" letter by letter.
void StackedText(Graphics& graphics, double x, double y, float size, Rgb colour,
                 std::initializer_list<std::string_view> words);
/// A flag: a black box with an amber frame around amber letters.
void DrawFlag(Graphics& graphics, int x, int y, int width, int height, std::string_view text);
