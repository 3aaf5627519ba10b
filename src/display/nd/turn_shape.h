#pragma once

#include <array>
#include <span>

#include "display/nd/map_view.h"
#include "fmc/legs/path.h"

/// The line of a turn at a fix: from where the leg before is left to where the next one is joined.
struct TurnShape {
    std::array<PaintPoint, 48> points;
    std::size_t count = 0;  // 0: a plain corner
    double leaves = 0;      // units before the fix
    double joins = 0;       // units behind it
    std::span<const PaintPoint> All() const { return {points.data(), count}; }
};

/// Between the places before and behind a fix, as they stand on a map of `scale` units per nm, at a ground
/// speed (kt): the line that LNAV's steering gives, with the bank that the autopilot flies it with. The turn
/// takes `room` units of the leg before at most.
TurnShape ShapeTurn(MapPoint before, MapPoint fix, MapPoint after, const FixTurn& turn, double speed,
                    double scale, double room);
