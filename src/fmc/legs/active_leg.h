#pragma once

// The leg that is flown to, as the working copy has it.

/// The leg of FlightPlanMod that EXEC makes the TO leg: the present one, as far as edits have not moved it.
int PendingActiveLeg();
void SetPendingActiveLeg(int leg);

/// After a leg has been sequenced: in state 3 the working copy's TO leg follows; in state 4 the pending
/// active leg moves on with it when the leg then flown to still stands in FlightPlanMod, so that EXEC never
/// sends the aircraft back to a passed fix.
void FollowSequencing();
