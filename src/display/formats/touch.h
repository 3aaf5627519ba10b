#pragma once

#include "display/formats/format.h"
#include "state/displays.h"

/// Leaves a press for the format's owner, who takes it at its next step.
inline void LeaveClick(FormatClick& click, const FormatTouch& at) {
    click = {at.unit, at.half, at.x, at.y};
}
