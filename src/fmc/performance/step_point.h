#pragma once

// Where the next step climb comes due.

/// Sets the step point and its distance: the first leg ahead with a step altitude, which becomes the step-to
/// altitude; else, with a step-to altitude above the cruise altitude, the place at which the weight allows
/// 500 ft more. Without either, or when that place lies behind the top of descent, there is none. Run at each
/// change of the step data.
void ComputeStepPoint();

/// Looks whether the step point has been passed: within 1.5 nm, or abeam.
void WatchStepPoint();

/// A step has come due: it is noted, and told when it isn't flown; with the setting autostepclimb the MCP
/// altitude is set to it.
void BeginStepClimb(double altitude);
