#pragma once

#include "display/formats/format.h"

/// The electronic checklist, one for all displays.
void DrawChecklist(Graphics& graphics, const ContentPlace& place);
void TouchChecklist(const FormatTouch& at);
