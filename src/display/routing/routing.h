#pragma once

#include "display/routing/modes.h"

// What the display select panels, the keypads and the captain's selector do to the display modes. A press
// that has no effect by the rules leaves everything as it is; no rule produces a code that isn't listed.

/// A format button of a display select panel: CDU, CHKL, COMM, INFO, ND or SYS for the side's inboard unit,
/// on the half that the panel acts on.
void PressInboardFormat(int side, Content content);

/// A format button of a keypad: the captain's sets the lower unit's left half, the first officer's its right
/// half.
void PressLowerFormat(int side, Content content);

/// The EICAS and the ENG button, the same for both panels.
void PressEicas();
void PressEngine();

/// Chooses the half (1 left, 2 right) that a display select panel acts on, and lights its lamp.
void SelectHalf(int side, int half);

/// The captain's PFD/MFD selector has come to a position: -1, 0 or 1.
void MoveDisplaySelector(int position);

/// Acts on the captain's selector where the model shows that it has moved.
void TakeDisplaySelector();

/// Brings the checklist onto the free half of the captain's inboard unit when somebody has asked for it.
void ShowRequestedChecklist();

/// With power, inboard units that show what the power-up left on them return to their own formats.
void RepairInboardModes();
