#pragma once

#include "state/efb.h"

// What is pressed on a tablet (kCaptain, kFirstOfficer): it waits for the page that is shown.

/// A tablet's canvas.
constexpr int kTabletWidth = 340, kTabletHeight = 448;

/// A key of the bezel.
void PressTabletKey(int side, EfbKey key);

/// A touch at a point of the canvas.
void TouchTablet(int side, int x, int y);

/// Brightens both tablets by steps of a tenth, or dims them.
void ChangeTabletBrightness(int steps);
