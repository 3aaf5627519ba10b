#pragma once

#include "state/plan.h"

// The life of the route: entered, activated, executed, modified, erased, thrown away. The legs that are flown
// stand in plan.active.legs; every edit works on plan.mod.legs, and EXEC (execute_route.h) takes it over.

/// Makes the working copy one of the active route, but for the `ata` and `mod_flag` of its legs.
void RefreshLegsForModification();

/// Throws the modification away: selections, pending values, holds and legs are again those of the active
/// route, and the state is 3. Below state 3 there is nothing to go back to, and nothing happens.
void EraseModification();

/// Throws all plan data away after a flight; the burn defaults are set again.
void ClearFlightPlan();
