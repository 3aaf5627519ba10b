#pragma once

// The warning channel: the aurals of crew alerting.

/// Takes the aural that crew alerting has asked for, once a service call. While the sounds are switched off
/// it waits. The siren and the autopilot's disconnect don't come while the siren runs.
void TakeAlertAural();

/// Ends the siren with the last warning, and what else sounds with the last caution; each service call.
void EndWarningSounds();
