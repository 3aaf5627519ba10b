#pragma once

/// Runs once, more than 4 seconds after the first update, when the host has settled: the cockpit shows the
/// shadows, the stored fuel is loaded, the crew is told about stale navigation data.
void DelayedStart();
