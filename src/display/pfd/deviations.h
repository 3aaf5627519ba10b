#pragma once

#include "display/pfd/pfd_view.h"

/// The scales beside and below the attitude: how far the aircraft is off the beam, the final course and path,
/// or the route.
void DrawDeviations(const PfdView& view);
