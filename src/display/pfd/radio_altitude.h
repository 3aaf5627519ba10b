#pragma once

#include "display/pfd/pfd_view.h"

/// What stands in the place of speeds, altitudes and vertical speed until the display has come up.
void DrawStartupFlags(const PfdView& view);
/// The height above ground up to 2500 ft, in steps that grow with it.
void DrawRadioAltitude(const PfdView& view);
void DrawPullUp(const PfdView& view);
