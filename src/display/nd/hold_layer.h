#pragma once

#include "display/nd/map_view.h"

/// The holds of the route, and of a modification that waits.
void DrawHolds(Graphics& graphics, const MapView& view);
