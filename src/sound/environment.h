#pragma once

/// The sounds of the flight deck waking up, once a second: after the buses get power the fans start at 10 s,
/// the quiet loop at 12 s, the loud one at 20 s; the loop on battery power ends by itself after 180 s.
void StepEnvironmentTimers();
