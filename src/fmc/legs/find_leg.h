#pragma once

#include "state/plan.h"

/// The last place before `index`, -1 when there is none.
int PlaceBefore(const GrowingList<FlightPlanLeg>& legs, int index);

/// The leg of FlightPlanMod, from `first` on, that is the same place; 0 = none.
int FindModLeg(const FlightPlanLeg& place, int first);
