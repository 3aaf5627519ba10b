#pragma once

#include "display/nd/nd_frame.h"

// What stands along the route.

/// Places with their names, and constraints and times where they are on.
void DrawRouteLabels(Graphics& graphics, const NdFrame& frame);

/// The runways' ends on a large map, and their extended centrelines on a small one.
void DrawRunways(Graphics& graphics, const MapView& view);

/// Top of climb, step climb and top of descent while they are ahead.
void DrawVnavPoints(Graphics& graphics, const MapView& view);

/// The setting DrawLnavAimingPoint: what LNAV steers for.
void DrawAimingPoint(Graphics& graphics, const MapView& view);
