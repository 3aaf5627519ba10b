#pragma once

#include "paint/graphics.h"

/// The head-up display, 480 by 410.
void DrawHud(Graphics& graphics);
