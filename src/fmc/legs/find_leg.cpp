#include "fmc/legs/find_leg.h"

#include <algorithm>

#include "state/leg_words.h"

int PlaceBefore(const GrowingList<FlightPlanLeg>& legs, int index) {
    for (int i = index - 1; i >= 0; --i)
        if (IsPlace(legs[i])) return i;
    return -1;
}

int FindModLeg(const FlightPlanLeg& place, int first) {
    for (int i = std::max(first, 1); i <= plan.mod.leg_cnt; ++i) {
        const FlightPlanLeg& leg = plan.mod.legs[i];
        if (leg.ident == place.ident && leg.lat == place.lat && leg.lon == place.lon) return i;
    }
    return 0;
}
