#pragma once

// The auxiliary power unit: a ramp up, a ramp down with a cooldown, and its selector.

/// One tick: fault lamp, start, ramps, fire handle.
void StepApu();

/// The selector has moved by one position: 0 OFF, 1 ON, 2 START.
void FollowApuSelector(int before);

/// In the air the APU starts by itself when generators are missing; once a second.
void StartApuInFlight();

/// Publishes the speed; once a second.
void PublishApu();
