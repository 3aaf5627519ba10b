#pragma once

/// The output step of every pre-update from the eighth second on, ticks or not: system timers, published
/// values, lamps.
void TickOutputs();
