#pragma once

#include "display/eicas/eicas_words.h"

/// Fuel quantities, gross weight and temperatures, at the foot of the display.
void DrawFuelBlock(Graphics& graphics);
