#pragma once

// Electrical power as one sum of what feeds the aircraft; thresholds of the sum decide what works.

/// External power has been connected or taken away by the model; in the air or while rolling it isn't taken.
void FollowExternalPower(int before);

/// Once a second: start-up counters of the Display Units, all sources, the sum, the buses, the RAT and the
/// load shed state.
void StepElectricalPower();

/// The maintenance reset: connects the drives, stows the RAT and the oxygen masks, gives a full battery.
void ResetByMaintenance(int before);
