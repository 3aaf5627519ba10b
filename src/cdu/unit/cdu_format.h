#pragma once

#include "paint/graphics.h"

/// Draws a side's CDU on a half (1 left, 2 right) of a Display Unit: page, keys, scratchpad and messages.
/// A line key that is pending waits for StepCdu.
void DrawCdu(Graphics& graphics, int half, int side);
