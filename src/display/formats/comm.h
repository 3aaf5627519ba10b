#pragma once

#include "display/formats/format.h"

/// The datalink pages. A press waits for them.
void DrawComm(Graphics& graphics, const ContentPlace& place);
void TouchComm(const FormatTouch& at);
