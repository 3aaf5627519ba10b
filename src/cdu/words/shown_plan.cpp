#include "cdu/words/shown_plan.h"

#include <algorithm>

#include "base/angles.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/path.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/leg_words.h"
#include "state/lnav.h"

namespace {

const GrowingList<FlightPlanLeg>& ShownList() {
    return IsRouteSettled() ? plan.active.legs : plan.mod.legs;
}

}  // namespace

const FlightPlanLeg& ShownLeg(int index) {
    return ShownList()[index];
}

int ShownCount() {
    return IsRouteSettled() ? plan.active.leg_cnt : plan.mod.leg_cnt;
}

int ShownActiveLeg() {
    if (!IsRouteActive()) return 0;
    const int leg = IsRouteSettled() ? plan.active.stpos : PendingActiveLeg();
    return leg == kNoPlan ? 0 : leg;
}

int FirstShownLeg() {
    return std::max(1, ShownActiveLeg());
}

ShownTrack TrackToLeg(int index) {
    const int before = PlaceBefore(ShownList(), index);
    if (before < 0 || !IsPlace(ShownLeg(index))) return {};
    const FlightPlanLeg& from = ShownLeg(before);
    const FlightPlanLeg& to = ShownLeg(index);
    const DistBearing line = GreatCircle(from.lat, from.lon, to.lat, to.lon);
    double course = FoldBearing(line.bearing - MagVarAt(from.lat, from.lon));
    if (course < 0.5) course += 360;
    return {true, course, line.dist};
}

double DistanceTo(int leg) {
    if (leg == ShownActiveLeg() && lnav.wpt_dist > 0) return lnav.wpt_dist;
    const int before = PlaceBefore(ShownList(), leg);
    if (before < 0 || !IsPlace(ShownLeg(leg))) return 0;
    const FlightPlanLeg& from = ShownLeg(before);
    return GreatCircle(from.lat, from.lon, ShownLeg(leg).lat, ShownLeg(leg).lon).dist;
}
