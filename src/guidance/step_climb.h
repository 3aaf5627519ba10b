#pragma once

/// Each pass: an automatic step climb begins when the MCP altitude has come to the step altitude.
void FlyStepClimb();

/// Each tick: counts how long a step that is due isn't flown, to 300. It is over 250 ft above the altitude at
/// which it came due, or 1000 ft below it.
void CountStepClimb();
