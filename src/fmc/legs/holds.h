#pragma once

#include "state/plan.h"

constexpr int kMostHolds = 8;
constexpr int kHoldTakenOut = -1;  // pending_leg of the hold being flown, when the working copy has lost it

/// Adds a hold at a leg, in force with EXEC: right turns of one minute, inbound on the course from
/// `prev_leg`. The legs are read from FlightPlan with `active` (what the pages show in state 3), else from
/// FlightPlanMod. Refused when eight stand, when the leg has one, when it is no place, or when a modification
/// has taken it out.
void MarkHold(int leg, bool active, int prev_leg);

/// Removes the hold of a leg of FlightPlanMod. The hold being flown goes on until EXEC, and is then left
/// (`hold_exit` 4). With the last hold the HOLD page gives way to LEGS. No hold there: nothing.
void RemoveHold(int leg);

/// Removes a hold by its place in HoldList, from 1, at once.
void RemoveHoldRecord(int hold);
void RemoveAllHolds();

/// The leg of FlightPlanMod that a hold belongs to, 0 when it has none there.
int HoldLegInModification(const HoldRecord& hold);

/// Sorts HoldList by leg and writes each leg's `hold_pos` anew, in both lists.
void RenumberHolds();

/// EXEC: the holds of the working copy become those of the active route.
void PromoteHolds();
/// ERASE: the executed holds come back, but for those passed since.
void RestoreExecutedHolds();
/// Drops the holds that exist in the working copy only.
void DropPendingHolds();
