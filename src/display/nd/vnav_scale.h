#pragma once

#include "display/nd/nd_frame.h"

/// In the descent: how far the aircraft is above or below the path. Stands in the frame of the texts.
void DrawVnavScale(Graphics& graphics, const NdFrame& frame);
