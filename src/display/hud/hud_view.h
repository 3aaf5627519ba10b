#pragma once

#include <initializer_list>
#include <string_view>

#include "paint/graphics.h"
#include "paint/painter.h"

// What the pieces of the head-up display share. It shows the captain's data in one colour, which no
// brightness changes, on nothing. Coordinates are offsets from the middle of the picture, 480 by 410, or from
// that of the attitude, 55 above it; y down.

constexpr Argb kHudColour = Opaque({29, 252, 125});
constexpr int kHudX = 240, kHudY = 205, kAttitudeY = 150, kRoseY = 385;
constexpr double kHudReach = 100;  // units of a tape above and below its middle
constexpr double kFineWidth = 1;   // of a line of the moving symbols; the fixed ones are twice that

/// Only numbers, no tapes and no compass.
bool IsDecluttered();
Pen HudPen(double width = kFineWidth);
Brush HudBrush();
void HudLine(Graphics& graphics, double x1, double y1, double x2, double y2);
void HudBox(Graphics& graphics, double x, double y, double width, double height);
/// Upper left corner at x, y; middle of the first line at y, from x, up to x, or about it.
void HudText(Graphics& graphics, double x, double y, float size, std::string_view text);
void HudTextFrom(Graphics& graphics, double x, double y, float size, std::string_view text);
void HudTextUpTo(Graphics& graphics, double x, double y, float size, std::string_view text);
void HudTextAbout(Graphics& graphics, double x, double y, float size, std::string_view text);
/// A rolling digit, as on the primary flight display's drums.
void HudDrum(Graphics& graphics, double x, double value, double place, double step, bool blank = false);
/// Lets be drawn on what lies in the outer rectangle and not in the inner one.
struct HudArea {
    int x, y, width, height;
};
void ClipAround(Graphics& graphics, const HudArea& outer, const HudArea& inner);
