#pragma once

#include "efb/words/face.h"

/// Types a character on the tablets: it joins the scratch text, '\b' drops the last one, a text is at most 40
/// characters long. A character that the soft keyboard has on no layer is passed over.
void TypeCharacter(char c);

/// Lays out the soft keyboard of the face's side over the lower part of the page, when it is shown.
void AddKeyboard(TabletFace& face);

/// The key at the left edge that shows the keyboard, or hides it.
void AddKeyboardToggle(TabletFace& face);
