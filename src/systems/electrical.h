#pragma once

// Electrical power as one sum of what feeds the aircraft; thresholds of the sum decide what works.

/// External power is connected or taken away by the model: refused in the air or while rolling, the model is
/// then put back. Looks at it in four phases of a second.
void StepExternalPower();

/// Once a second: start-up counters of the Display Units, all sources, the sum, the buses, the RAT and the
/// load shed state.
void StepElectricalPower();

/// The maintenance reset: connects the drives, stows the RAT and the oxygen masks, gives a full battery.
void ResetByMaintenance(int before);
