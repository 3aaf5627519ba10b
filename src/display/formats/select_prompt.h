#pragma once

#include "display/formats/format.h"

/// Asks for a format on a half that has none.
void DrawSelectPrompt(Graphics& graphics, const ContentPlace& place);
