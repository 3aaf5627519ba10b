#pragma once

#include <optional>

#include "state/fix_info.h"

struct RouteCrossing {
    double distance = 0;  // nm along the route from the aircraft
    double altitude = 0;  // ft, predicted; 0 = not known
};

/// Where the active route first meets a ring or a radial about a fix; of a row with both, the way straight to
/// the place that they name. Nothing without a fix, a row, or a meeting.
std::optional<RouteCrossing> FindRouteCrossing(const FixPage& fix, const FixPage::Row& row);
