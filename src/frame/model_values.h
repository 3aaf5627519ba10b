#pragma once

// What the 3D model tells, and is told, beside its controls.

/// Publishes the settings that the model reads: lighting, engine family.
void PublishModelSettings();

/// Reads what the model works out: thrust ratios, speed limits, cabin.
void ReadModelValues();

/// Reads what the model knows better than the cockpit's start values: landing lights, highest speed.
void ReadModelPositions();
