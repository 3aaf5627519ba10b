#pragma once

#include <string_view>

#include "paint/colours.h"
#include "paint/graphics.h"

/// A key on a screen.
struct SoftKeyBox {
    int x, y, width, height;
};

struct SoftKeyLook {
    bool active = false;  // what it selects is in force: a green line under its text
    bool enabled = true;  // else its text is grey
    bool visible = true;  // false while a flashing key is dark
    Rgb ink = kBlack;
};

/// Draws a key with its text, which may have two lines, in the middle.
void DrawSoftKey(Graphics& graphics, const SoftKeyBox& box, std::string_view text, const SoftKeyLook& look);
