#pragma once

// Lateral guidance: follows the active leg of FlightPlan, decides when the next one starts and works out the
// heading to steer. It flies nothing; AutoflightLogic reads the result.

/// One step, called on every tick by the main update. Requests to sequence, the distance at which the next
/// leg starts and the holds are looked at on each; sequencing, cross-track and steering follow at the ticks
/// where IsGuidancePass() holds, or at once with `force_sequence`. Without a plan only `xtk` is set, to -99.
void LnavUpdate();

/// Whether the full lateral and vertical pass runs on this tick: three of the eighteen phases of a second,
/// and once in two seconds besides.
bool IsGuidancePass();

/// Whether a hold's pattern is being flown, so that its heading is in force and not that of the leg.
bool IsHoldPatternFlown();
