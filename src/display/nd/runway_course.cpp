#include "display/nd/runway_course.h"

#include "base/angles.h"
#include "navdata/geodesy.h"
#include "state/sim.h"

double TrueRunwayCourse(const RunwayData& runway) {
    if (runway.recip_lat != 0 || runway.recip_lon != 0)
        return GreatCircle(runway.lat, runway.lon, runway.recip_lat, runway.recip_lon).bearing;
    return FoldBearing(runway.course + sim.mgvar);
}
