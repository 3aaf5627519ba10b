#pragma once

#include <string_view>

#include "display/nd/nd_frame.h"
#include "paint/colours.h"

// The frame in which the texts around the map stand: its origin is the middle of the display, 235 below the
// top. On a display over both halves what stands at a side goes out to that side.

void EnterTextFrame(Graphics& graphics, const NdFrame& frame);

/// A place of the half-width display on the one drawn.
double AtSide(const NdFrame& frame, double x);

constexpr float kNdTextSize = 9, kNdValueSize = 11;

/// A text that may be cut at 31 characters, by printf's rules.
[[gnu::format(printf, 6, 7)]] void PrintText(Graphics& graphics, double x, double y, float size, Rgb colour,
                                             const char* format, ...);

/// A black box for a text.
void BlackBox(Graphics& graphics, double x, double y, int width, int height);
