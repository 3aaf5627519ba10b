#pragma once

#include "state/plan.h"

// The edits that all operations on FlightPlanMod are made of. What points into the list moves with its legs:
// holds, `mod_bod_pos`, the start of the airway in work, and from state 3 on the pending active leg.

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
