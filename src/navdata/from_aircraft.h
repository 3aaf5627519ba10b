#pragma once

#include "navdata/geodesy.h"
#include "state/sim.h"

/// Distance (nm) and initial bearing (degrees true, 0 to below 360) from the aircraft to a point.
inline DistBearing FromAircraft(double lat, double lon) {
    return GreatCircle(sim.plane_lat, sim.plane_lon, lat, lon);
}
