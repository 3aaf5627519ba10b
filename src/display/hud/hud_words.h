#pragma once

#include "paint/graphics.h"

// What the head-up display writes: modes at the top, what the approach is flown by, wind, heading.

void DrawHudModes(Graphics& graphics);
void DrawHudApproachSource(Graphics& graphics);
void DrawHudWind(Graphics& graphics);
