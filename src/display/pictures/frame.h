#pragma once

#include "display/pictures/painted_gauges.h"
#include "paint/draw_list.h"

/// Composes one picture of a gauge from the state as it stands. False when the gauge may not paint now, so
/// that its last picture stays. Called under the state lock.
bool ComposeFrame(const PaintedGauge& gauge, DrawList& list);
