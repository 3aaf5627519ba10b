#pragma once

// What the stand-in simulator itself does with a key event: the values that it changes, before the hooks hear
// of it.

namespace host {

/// Events of the stand-in host alone: pedal brakes, 0 to 16383; a click of the trim switches, 1 nose up, -1
/// nose down; somebody takes the stick; nobody holds it any more; one engine's lever, -4096 to 16384.
constexpr int kKeyBrakes = 0x1f001, kKeyTrim = 0x1f002, kKeyTakeStick = 0x1f003, kKeyLetStickGo = 0x1f004,
              kKeyLeverLeft = 0x1f005, kKeyLeverRight = 0x1f006;

/// Carries out the effect of one key event; an event without one does nothing here.
void ApplyKeyEvent(int event, int value);

}  // namespace host
