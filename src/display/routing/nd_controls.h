#pragma once

// What the navigation display's controls of a side (kCaptain, kFirstOfficer) do.

/// The range that a side's map is drawn with: rng_nm, or that of the knob's position where it is no range.
double SelectedRange(int side);

/// Sets the range by the range knob's position, 0 to 11.
void FollowRangeKnob(int side);

/// Moves the range knob by steps, as another gauge does for the pilot; it stops at its ends.
void TurnRangeKnob(int side, int steps);

/// kNdMap or kNdPlan (state/nd.h). PLAN begins at the first leg, and around the aircraft unless a centre has
/// been set.
void SelectNdMode(int side, int mode);

/// MAP or PLAN by the mode knob's position.
void FollowNdKnob(int side);

void ToggleNdCentre(int side);

/// The panel's buttons: weather and terrain exclude each other.
void PressWeatherButton(int side);
void PressTerrainButton(int side);
void PressTrafficButton(int side);
