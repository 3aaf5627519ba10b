#include "cdu/words/enroute.h"

#include <algorithm>

#include "base/angles.h"
#include "cdu/words/eta.h"
#include "fmc/legs/find_leg.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"

double TotalFuel() {
    return sim.total_fuel + perf.FuelEntry;
}

bool HasEstimates() {
    constexpr double kLeastGroundSpeed = 75;
    return sim.ground_speed_kt > kLeastGroundSpeed;
}

double BearingFromAircraft(double lat, double lon) {
    return FoldCourse(FromAircraft(lat, lon).bearing - sim.mgvar);
}

double DistanceAlongRoute(int leg) {
    const RouteVersion& route = plan.active;
    if (!IsRouteActive() || route.stpos == kNoPlan || route.stpos < 1 || leg < route.stpos) return -1;
    double distance = std::max(0.0, lnav.wpt_dist);
    int from = route.stpos;
    for (int i = route.stpos + 1; i <= std::min(leg, route.leg_cnt); ++i) {
        if (!IsPlace(route.legs[i])) continue;
        if (IsPlace(route.legs[from]))
            distance +=
                GreatCircle(route.legs[from].lat, route.legs[from].lon, route.legs[i].lat, route.legs[i].lon)
                    .dist;
        from = i;
    }
    return distance;
}

std::string EtaAfter(double distance) {
    return HasEstimates() && distance >= 0 ? EtaText(distance / sim.ground_speed_kt) : "";
}
