#pragma once

// What the stand-in simulator itself does with a key event: the values that it changes, before the hooks hear
// of it.

namespace host {

/// Carries out the effect of one key event; an event without one does nothing here.
void ApplyKeyEvent(int event, int value);

}  // namespace host
