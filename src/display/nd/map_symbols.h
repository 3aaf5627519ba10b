#pragma once

#include <string_view>

#include "display/nd/map_view.h"
#include "paint/colours.h"

enum class MapSymbol {
    kWaypoint = 1,  // four-pointed star, its centre 8 below the point
    kTriangle = 3,
    kLargeStar = 5,
    kFix = 2,             // slender star, 8 high, hanging from the point
    kRouteWaypoint = 20,  // as kWaypoint
    kPentagon = 61,       // filled, pointing down
    kDisc = 62,
    kSquare = 63,
};

constexpr int kNoMark = -99, kMarkAbove = 1, kMarkBelow = 2;

/// One symbol of the map; `mark` puts a roof above or below a filled one. Not dimmed with the display.
void DrawMapSymbol(Graphics& graphics, MapPoint at, MapSymbol symbol, Rgb colour, int mark = kNoMark);

/// A label of the map, its upper left corner at a point, in the size that the configuration gives to labels.
void MapLabel(Graphics& graphics, double x, double y, Rgb colour, std::string_view text);
