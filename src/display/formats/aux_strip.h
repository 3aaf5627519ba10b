#pragma once

#include "display/formats/format.h"

/// The auxiliary strip beside the PFD of an outboard unit, 182 wide: flight number, microphone, transponder
/// and selective calling code, and below them the place of the radios.
void DrawAuxStrip(Graphics& graphics, const ContentPlace& place);
