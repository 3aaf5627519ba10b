#pragma once

#include "paint/graphics.h"

/// Draws the CDU of a half (1 left, 2 right) of a Display Unit (1 to 5): page, keys, scratchpad and messages.
/// A line key that is pending waits for StepCdu.
void DrawCdu(Graphics& graphics, int half, int display_unit);
