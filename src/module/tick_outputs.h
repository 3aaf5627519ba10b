#pragma once

/// The output step of every pre-update from the eighth second on. `ticked`: the 18 Hz counter has moved since
/// the last one. In pause it hasn't: then what counts time or belongs to a phase rests, but for the alignment
/// of the inertial units; reading, publishing and pictures go on.
void TickOutputs(bool ticked);
