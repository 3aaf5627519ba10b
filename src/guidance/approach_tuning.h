#pragma once

// The selected approach's localizer on NAV 1.

/// Each pass: tunes it once per approach, an ILS or a localizer whose frequency is known, within 40 nm of the
/// destination or behind the top of descent.
void TuneApproach();

/// Four times a second until the host has taken the frequency: it is sent again, ten times at the most. With
/// a signal the station's identifier is kept for the displays.
void CheckApproachTuning();
