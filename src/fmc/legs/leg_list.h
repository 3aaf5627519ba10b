#pragma once

#include "state/plan.h"

// The edits that all operations on FlightPlanMod are made of. What points into the list moves with its legs:
// holds, `mod_bod_pos`, the start of the airway in work, and from state 3 on the pending active leg.

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

/// Opens a fresh leg at a position, 1 to `mod_cnt` + 1; the legs from there on move up by one.
FlightPlanLeg& OpenModLeg(int position);

/// Opens a "DISCO" at a position, unless it would stand beside another or at an end of the list.
void OpenDisco(int position);

/// Removes legs with their holds; the following ones move down.
void RemoveModLegs(int first, int count);

/// Two "DISCO" legs side by side become one.
void MergeNeighbourDiscos();

/// Makes sure that the list has an origin and a slot for the destination.
void EnsureEnds();
