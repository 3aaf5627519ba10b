#pragma once

#include "paint/painter.h"
#include "state/eicas.h"

// What the pieces of the engine display share. Each piece is drawn in a frame of its own, that the order of
// the pieces (display/formats/eicas.cpp) sets.

constexpr Rgb kDialFill{82, 82, 82};
constexpr Rgb kEicasRed{255, 0, 0};

/// Text in the engine display's own family, from its upper left corner; ending at x, with its middle at y.
void EicasText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);
void EicasTextUpTo(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text);

/// A small label, in the family of all displays.
inline void EicasLabel(Graphics& graphics, double x, double y, float size, std::string_view text) {
    Text(graphics, x, y, size, kCyanAlternate, text);
}

/// An engine of the display, as its pieces see it.
struct EngineView {
    const EngineReadings& readings;
    bool right = false;
};

bool HasThrustRatioDials();
/// A value in thousands of the crew's unit of weight.
double ThousandsOf(double lb);
