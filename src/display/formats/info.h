#pragma once

#include "display/formats/format.h"

/// The information pages. A press waits for them.
void DrawInfo(Graphics& graphics, const ContentPlace& place);
void TouchInfo(const FormatTouch& at);
