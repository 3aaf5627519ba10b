#pragma once

#include "display/pfd/pfd_view.h"

/// The compass rose at the foot, with the route as it lies about the aircraft inside of it: its edge is half
/// the range of the side's navigation display.
void DrawPfdCompass(const PfdView& view);

/// What stands at the rose's top: the heading, in the sense in use.
double ReferenceHeading();
/// The middle of the rose, below that of the attitude.
constexpr int kCompassY = 370 - 128;
