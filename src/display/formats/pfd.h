#pragma once

#include "display/formats/format.h"

/// The primary flight display.
void DrawPfd(Graphics& graphics, const ContentPlace& place);
