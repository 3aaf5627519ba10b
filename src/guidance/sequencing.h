#pragma once

// The step from one leg of the plan to the next.

/// The leg that is flown after `leg`: the next one that is no discontinuity, 0 when the plan ends there.
int LegAfter(int leg);
/// The leg that was flown before `leg`: the nearest earlier one that is no discontinuity, at least 0.
int LegBefore(int leg);

/// What turns a true bearing into one of the displays' reference: the variation, or 0 on the true reference.
double ReferenceVariation();

/// Whether the TO leg is a heading to fly rather than a place to reach.
bool IsVectorsLegActive();

/// Passes the TO fix: reports the position, clears the fix's constraint, makes the next leg the active one
/// and takes its distances. At the plan's last fix `plan_finished` is set and LNAV lets go instead.
void SequenceLeg();

/// Starts a leg that has become the active one: its distances are taken, and until its fix is near it ends
/// straight ahead. The turn distance of an earlier fix must not sequence it.
void BeginActiveLeg();

/// Takes course, distances and cross-track of the active leg anew from the aircraft's position.
void LocateOnActiveLeg();
/// Whether the values of LocateOnActiveLeg belong to the leg that is now active.
bool IsActiveLegLocated();
