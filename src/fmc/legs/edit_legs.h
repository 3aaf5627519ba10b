#pragma once

// Edits that take legs or rows out of FlightPlanMod.

/// Connects two legs: those between are removed. From the active leg, with the route active, it is a
/// direct-to: everything before `to` (which may be the active leg itself) goes, EXEC starts a course from
/// where the aircraft then is. Opens a modification. Positions out of order change nothing.
void ConnectLegs(int from, int to, int side);

/// Makes a leg of FlightPlanMod the one that EXEC starts a course to, from where the aircraft then is.
void GoDirectTo(int leg);

/// Takes a leg out: a "DISCO" takes its place, unless one stands beside it; with `reconnect` its neighbours
/// are joined instead. Its hold goes first. The origin and the last leg stay.
void DeleteLegWithDiscontinuity(int leg, bool reconnect, int side);

/// Removes a row of the RTE page: its fix, or the whole airway or procedure; a "DISCO" stands where the route
/// is broken. 1, or 0 for a row that cannot go: none of that number, or a discontinuity. Opens a modification
/// in state 3.
int RemoveToRow(int row);

/// Removes the via of a row: its end fix stays as a direct leg, those before it on that via go. 1, or 0 for a
/// row that has none.
int RemoveViaRow(int row);

/// The pass after edits: open airway ends drop out, "VECTORS" legs lie where the leg before ends, `mod_cnt`
/// is the last index.
void NormalizeLegs();
