#pragma once

#include "paint/graphics.h"

/// A side's electronic flight bag, 340 by 448.
void DrawTablet(Graphics& graphics, int side);
