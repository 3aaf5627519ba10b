#pragma once

/// Turns the IRS knob of a side (kCaptain left, kFirstOfficer right): on starts the alignment, off ends it
/// and the aligned state at once. Writes the knob's named variable.
void ToggleIrsKnob(int side);

/// One tick of the alignment timers; they run in pause too. Position and movement don't matter.
void StepIrs();

/// Reads the two alternate attitude switches, once a second; they only give alerts.
void ReadAttitudeSwitches();
