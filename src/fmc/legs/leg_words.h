#pragma once

#include "state/plan.h"

// What the legs of a list are, for all who read them.

constexpr const char* kMissedApproach = "MISSED APPR";  // the via of its legs

bool IsDisco(const FlightPlanLeg& leg);
bool IsThen(const FlightPlanLeg& leg);     // airway without an end
bool IsVectors(const FlightPlanLeg& leg);  // a heading to fly, until the crew goes on
bool IsMissedApproach(const FlightPlanLeg& leg);
/// A leg with a position: no "DISCO", no "THEN", not the empty slot of a destination still to come.
bool IsPlace(const FlightPlanLeg& leg);

/// The last place before `index`, -1 when there is none.
int PlaceBefore(const GrowingList<FlightPlanLeg>& legs, int index);

/// The leg of FlightPlanMod, from `first` on, that is the same place; 0 = none.
int FindModLeg(const FlightPlanLeg& place, int first);
