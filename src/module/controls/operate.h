#pragma once

#include <cstdint>

#include "module/controls/control.h"

// How controls move, whoever moves them.

/// A click with kMouseLeftSingle or kMouseRightSingle: the one thing that a mouse area does. A switch goes up
/// by the right and down by the left; on a guarded button the right moves its guard.
void ClickControl(const Control& control, std::uint32_t mouse_flag);
/// The same by the control's named variable; nothing for one that is no control's.
void ClickControl(NamedVarRef variable, std::uint32_t mouse_flag);

/// Looks whether the model has moved the control and does what a click does; what is refused springs back.
void PollControl(const Control& control);

/// Looks for clicks in the virtual cockpit: the sets that are due at a phase, 0 to 17.
void PollControls(int phase);
