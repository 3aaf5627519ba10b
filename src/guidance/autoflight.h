#pragma once

// The contract with AutoflightLogic, the component outside the system that flies the modes: what it reports
// is copied each tick, what guidance has worked out is published for it.

/// Copies the modes that AutoflightLogic reports, with what hangs on them: LNAV and VNAV engaged, the boxes
/// around new modes, the autopilot disconnect. Without the component everything reads 0.
void ReadAutoflightModes();

/// Writes the lateral and vertical targets: headings and a path of 999 mean none, a speed below 2 is a Mach.
void PublishGuidance();

/// Brings the host's flight director to what the switches say: on while one of them is.
void AgreeFlightDirector();

/// Counts the mode boxes down by one tick.
void StepAutoflightTimers();
