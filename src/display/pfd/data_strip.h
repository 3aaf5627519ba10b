#pragma once

#include "display/pfd/pfd_view.h"

/// The data on both sides of the compass: speeds, wind, radios, the next waypoint, the selected heading. Not
/// before an inertial unit has been switched on.
void DrawPfdDataStrip(const PfdView& view);
