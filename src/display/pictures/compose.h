#pragma once

#include "paint/graphics.h"

/// A Display Unit's picture by its mode; a mode that isn't listed has only background and divider. False, and
/// nothing is drawn, while a composition for the same gauge (2 to 26) is under way.
bool ComposeDisplayUnit(Graphics& graphics, int mode, int unit, int gauge_id);
