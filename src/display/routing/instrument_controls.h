#pragma once

// What the controls of the flight instruments outside the navigation displays do. A side is kCaptain or
// kFirstOfficer; steps count up to the right.

/// Minimums: 10 ft a step, 0 to 15000 ft.
void TurnMinimums(int steps);
/// An alert is taken back; else the minimums are hidden, or shown again.
void ResetMinimums();

/// The altimeters are the host's: one step of its setting, up or down; standard pressure.
void TurnBaro(int step);
void SetStandardBaro();

void ToggleFlightPathVector(int side);
void ToggleMetres(int side);
void ToggleHudDeclutter();

/// A tenth of the full brightness a step.
void ChangeStandbyBrightness(int steps);
void ToggleStandbyApproach();
void ToggleStandbyBaroUnit();

/// One elapsed-time clock for both sides: a press starts it, the next stops it, the third blanks it.
void PressElapsedTimeClock();
