#pragma once

#include "paint/graphics.h"

/// The navigation display of a side on a half (1 left, 2 right) of a unit, or over both halves.
void DrawNdPicture(Graphics& graphics, int side, int half, bool wide);
