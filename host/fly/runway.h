#pragma once

#include <string>

#include "host/session.h"

// A runway end of the route's origin or destination, as the pilot has it on his chart.

namespace host {

struct RunwayEnd {
    std::string name;                // empty = none
    double lat = 0, lon = 0;         // threshold
    double elevation = 0;            // ft
    double course = 0;               // degrees true
    double magnetic_course = 0;      // degrees, as published
    double length = 0;               // ft
    std::string ils_frequency = {};  // "109.90"; empty = no landing system
};

/// The runway of an airport slot, "origin_airport" or "dest_airport", by its place in the airport's list; for
/// 0 the longest, one with a landing system first.
RunwayEnd ReadRunway(const Session& session, const std::string& airport, int place);

/// Where the aircraft is, seen from a threshold along the landing course: miles before it, and miles to the
/// right of the centre line.
struct RunwayPosition {
    double before, right;
};
RunwayPosition PositionBefore(const RunwayEnd& runway, double lat, double lon);

}  // namespace host
