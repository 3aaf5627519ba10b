#pragma once

#include "paint/graphics.h"

/// The standby instrument, 100 by 92.
void DrawStandbyPfd(Graphics& graphics);
