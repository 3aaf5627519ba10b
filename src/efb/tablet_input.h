#pragma once

#include "state/efb.h"

// What is pressed on a tablet (kCaptain, kFirstOfficer). A dark one takes no touch.

/// A key of the bezel: it waits for the next service call.
void PressTabletKey(int side, EfbKey key);

/// A touch at a point of the canvas, with the flags of the mouse: a drag goes on from it and presses nothing.
/// Outside every button it does nothing.
void OnEfbTouch(int x, int y, int side, unsigned flags);

/// A key of a real keyboard: a character of the soft keyboard, '\b', or '\n', which closes the field.
void TypeOnTablet(int side, char key);

/// Brightens both tablets by steps of a tenth, or dims them.
void ChangeTabletBrightness(int steps);
