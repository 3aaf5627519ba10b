#pragma once

/// Sets the colour codes of the system pages' keys in state/synoptics.h; once a second.
void SetStatusDots();
