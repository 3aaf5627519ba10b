#pragma once

// Flying a hold: a racetrack of four points, the fix on its inbound leg.

/// One step, on every tick: flies the first hold of the active plan once its fix is reached, until its exit
/// is executed. Without a hold, or when the one being flown has been removed, nothing is flown.
void HoldUpdate();

/// The HOLD page's "EXIT HOLD>", after it has left 3 in `hold_exit`: opens the modification that EXEC puts
/// into force.
void ExitHold();

/// The HOLD page's "<NEXT HOLD": asks that side's CDU for the LEGS page, to select the leg of one more hold.
/// Nothing when five stand.
void NextHold(int side);
