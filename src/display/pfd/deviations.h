#pragma once

#include "display/pfd/pfd_view.h"

/// Where the pointers stand, in units from the middle, and what they are of. What has no pointer now is NaN.
struct DeviationShown {
    double level = 0, upright = 0;
    bool upright_scale = true;  // of the level scale alone: false
    double inner = 0;           // units from which the blocks at the level scale's ends begin
};
DeviationShown ShownDeviation();

/// The scales beside and below the attitude: how far the aircraft is off the beam, the final course and path,
/// or the route.
void DrawDeviations(const PfdView& view);
