#pragma once

#include "display/pfd/pfd_view.h"

/// The compass rose at the foot, with the map of what is near inside of it.
void DrawPfdCompass(const PfdView& view);

/// What the rose's top is: the heading by the reference in use.
double ReferenceHeading();
/// The middle of the rose, below that of the attitude.
constexpr int kCompassY = 370 - 128;
