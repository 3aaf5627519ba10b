#pragma once

/// The host's 18 Hz counter has moved since the last tick: the simulation isn't paused.
bool HasTicked();

/// Takes the counter, and moves the phases and the counters of ticks on.
void StepTimeBase();

/// Moves the phase of the service calls on, which also run in pause.
void StepFramePhase();
