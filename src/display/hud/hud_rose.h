#pragma once

#include "paint/graphics.h"

/// The compass rose at the foot, about its middle.
void DrawHudRose(Graphics& graphics);
/// The selected heading or track beside it.
void DrawHudFootLine(Graphics& graphics);
