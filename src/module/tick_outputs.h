#pragma once

/// The output step of every pre-update from the eighth second on: system timers, published values, lamps.
/// `ticked`: the 18 Hz counter has moved since the last one; in pause it hasn't.
void TickOutputs(bool ticked);
