#pragma once

#include "display/nd/nd_frame.h"

/// The places of the FIX INFO pages with their rings and radials.
void DrawFixRings(Graphics& graphics, const MapView& view);
