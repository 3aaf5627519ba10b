#pragma once

#include "display/nd/nd_frame.h"

/// The texts around the map: layers that are on, speeds, next waypoint, range, selected heading, wind, VOR
/// receivers, and the vertical deviation.
void DrawNdHeader(Graphics& graphics, const NdFrame& frame);
