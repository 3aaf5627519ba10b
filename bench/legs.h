#pragma once

#include <string>

#include "state/plan.h"

/// Legs 0 to `last` of a route: some direct, some on airways, 12 nm apart.
inline void FillLegs(GrowingList<FlightPlanLeg>& legs, int last) {
    for (int i = 0; i <= last; ++i) {
        FlightPlanLeg& leg = legs[i];
        leg.ident = "LEG" + std::to_string(i);
        leg.type = "INT";
        leg.via = i % 2 == 0 ? "DIRECT" : "Q" + std::to_string(i / 10);
        leg.lat = 30 + i * 0.2;
        leg.lon = i % 3 * 0.1;
    }
}
