#pragma once

// Temperatures of the compartments: each drifts to its target by a degree a minute.

/// A temperature selector has moved: it sets the target of its compartment.
void FollowTemperatureSelectors(int before);

/// Once a second.
void StepTemperatures();
