#include "fmc/legs/leg_words.h"

#include <algorithm>

bool IsDisco(const FlightPlanLeg& leg) {
    return leg.ident == "DISCO";
}

bool IsThen(const FlightPlanLeg& leg) {
    return leg.ident == "THEN";
}

bool IsVectors(const FlightPlanLeg& leg) {
    return leg.ident == "VECTORS";
}

bool IsMissedApproach(const FlightPlanLeg& leg) {
    return leg.via == kMissedApproach;
}

bool IsPlace(const FlightPlanLeg& leg) {
    return !leg.ident.empty() && !IsDisco(leg) && !IsThen(leg);
}

int PlaceBefore(const GrowingList<FlightPlanLeg>& legs, int index) {
    for (int i = index - 1; i >= 0; --i)
        if (IsPlace(legs[i])) return i;
    return -1;
}

int FindModLeg(const FlightPlanLeg& place, int first) {
    for (int i = std::max(first, 1); i <= plan.mod_cnt; ++i) {
        const FlightPlanLeg& leg = plan.FlightPlanMod[i];
        if (leg.ident == place.ident && leg.lat == place.lat && leg.lon == place.lon) return i;
    }
    return 0;
}
