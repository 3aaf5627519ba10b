#pragma once

struct PageCall;

// LEGS in its hold selection: where the next hold goes. A hold stands as a leg of its own behind its fix.

/// Whether the entry is "HOLD AT " and a fix, as a pick on SELECT DESIRED WPT leaves it.
bool IsHoldAtEntry(const PageCall& call);

/// Places a hold at the fix of such an entry, before a leg of FlightPlanMod; one below the list goes before
/// the destination.
void HoldAtPick(PageCall& call, int leg);

/// L6: a hold at the leg that has been picked, at the leg or the place that has been entered.
void PlaceEnteredHold(PageCall& call);

/// R6, "PPOS>": a hold where the aircraft is, flown at once.
void HoldAtPresentPosition(PageCall& call);
