#pragma once

#include "display/pfd/pfd_view.h"

/// Units from the middle of the scale at which a vertical speed (fpm) stands, up positive, 64 at the most.
double VerticalSpeedUnits(double fpm);

/// The scale with needle, bug and digits, and the bands that a resolution advisory forbids.
void DrawVerticalSpeed(const PfdView& view);
