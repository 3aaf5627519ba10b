#pragma once

#include "state/plan.h"

// The life of the route: entered, activated, executed, modified, erased, thrown away. The legs that are flown
// stand in plan.FlightPlan; every edit works on plan.FlightPlanMod, and EXEC (execute_route.h) takes it over.

/// Moves `fms_fpln_active` on: 0 to 1, 1 to 2, 2 to 3, 3 to 4 (the TO leg is then kept as the pending active
/// leg), 4 to 3. On the ground below 5 kt it also loads the planned fuel, once, and sets the MCP
/// altitude to a pending cruise altitude of 1000 ft or more, as far as the configuration wants that.
void AdvanceRouteState();

/// AdvanceRouteState where an edit opens something: in the states 0 (a first entry) and 3 (a modification).
void OpenModification();

/// Makes FlightPlanMod a copy of FlightPlan, without `ata` and `mod_flag`; the TO leg and the bottom of
/// descent follow, holds that exist in the working copy only are dropped.
void RefreshLegsForModification();

/// Throws the modification away: selections, pending values, holds and legs are again those of the active
/// route, and the state is 3. Below state 3 there is nothing to go back to, and nothing happens.
void EraseModification();

/// Throws all plan data away after a flight; the burn defaults are set again.
void ClearFlightPlan();

/// The leg of FlightPlanMod that EXEC makes the TO leg: the present one, as far as edits have not moved it.
int PendingActiveLeg();
void SetPendingActiveLeg(int leg);

/// After a leg has been sequenced: in state 3 the working copy's TO leg follows; in state 4 the pending
/// active leg moves on with it when the leg then flown to still stands in FlightPlanMod, so that EXEC never
/// sends the aircraft back to a passed fix.
void FollowSequencing();
