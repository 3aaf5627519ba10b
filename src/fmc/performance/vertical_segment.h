#pragma once

// Which fix ends the present vertical segment, and what must be reached there. Run when the route changes
// and when a fix is about to be passed.

/// Sets `bod_pos` to the leg from `first` on that ends the present segment: in the climb the next level-off
/// or ceiling, afterwards the next altitude to be met or kept above; the last leg when there is none. With
/// the top of descent passed, a change starts a new descent segment at the TO leg.
void FindBottomOfDescent(int first);

/// Sets the cross-at point and its altitude from `bod_pos`, the top of climb and the cruise altitude; without
/// a cruise altitude nothing changes.
void SetCrossAtPoint();

/// Set `clb_next_restr_alt`, `des_next_restr_alt` to the altitude of the next constraint from the TO leg on:
/// before the top of climb, behind the top of descent; 0 = none.
void FindNextClimbRestriction();
void FindNextDescentRestriction();
