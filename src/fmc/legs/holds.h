#pragma once

#include "state/plan.h"

constexpr int kMostHolds = 8;                     // of the modification
constexpr int kMostHoldRecords = 2 * kMostHolds;  // with those that it has lost

/// Adds a hold at a leg, in force with EXEC: right turns of one minute, inbound on the course from
/// `prev_leg`. The legs are read from FlightPlan with `active` (what the pages show in state 3), else from
/// FlightPlanMod. Refused when eight stand, when the leg has one, when it is no place, or when a modification
/// has taken it out.
void MarkHold(int leg, bool active, int prev_leg);

/// Removes the hold of a leg of FlightPlanMod; that of the active route is flown until EXEC. With the last
/// hold the HOLD page gives way to LEGS. No hold there: nothing.
void RemoveHold(int leg);

/// Removes a hold by its place in HoldList, from 1, from both versions of the route. The one being flown is
/// left at once (`hold_exit` 4).
void RemoveHoldRecord(int hold);
/// EXEC: those that the modification has lost.
void RemoveLostHolds();
void RemoveAllHolds();

/// The records of HoldList, those included that the modification has lost.
int HoldRecordCount();

/// Puts HoldList in the order of the legs that bear its holds and drops those that none bears any more. Due
/// whenever legs have moved, come or gone in either version.
void RenumberHolds();
