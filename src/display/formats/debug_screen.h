#pragma once

#include "paint/graphics.h"

/// The page for those who look after the system, 564 by 424.
void DrawDebugScreen(Graphics& graphics);
