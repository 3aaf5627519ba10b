#pragma once

#include "efb/words/face.h"
#include "paint/graphics.h"

// A tablet as a whole: power, what its page shows, what it does.

/// Paints a side's tablet, 340 by 448.
void DrawEfb(Graphics& graphics, int side);

/// Whether the side's screen shows something: it has power and has started up.
bool IsTabletLit(int side);

/// The page that is shown, as it is laid out: with the open list and the keyboard on top.
TabletFace FaceOf(int side);

/// Moves the scratch text into the field that is being edited. An empty text changes nothing.
void CommitEfbScratch();

/// Commits what is being typed and closes its field.
void CloseEditedField();

/// Does what a touch at a point of the page does.
void PressFace(int side, int x, int y);

/// Every service call: power, start-up, the bezel's keys.
void StepTablets();
