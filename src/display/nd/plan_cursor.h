#pragma once

#include <string>

#include "display/nd/nd_frame.h"
#include "display/nd/place_layers.h"

/// The place of the map that a side's cursor stands on.
struct CursorPoint {
    MapPoint on_map;
    LatLon at;
};
CursorPoint PointUnderCursor(const NdFrame& frame);

/// What the crew would type for it: the item of the layers there, or the position.
std::string CursorText(int side, const CursorPoint& point);

/// The cursor while it is on: a cross on the item there with its name, or on the point with its position.
void DrawPlanCursor(Graphics& graphics, const NdFrame& frame);
