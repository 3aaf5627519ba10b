#pragma once

#include "display/formats/format.h"

/// The electronic checklist. A press on its tabs or soft keys waits for the checklist.
void DrawChecklist(Graphics& graphics, const ContentPlace& place);
void TouchChecklist(const FormatTouch& at);
