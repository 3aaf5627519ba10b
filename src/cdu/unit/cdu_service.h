#pragma once

#include "paint/graphics.h"

/// Once a pre-update for each side: press timers, CLR MSG, the PC keyboard's commands. While the side's CDU
/// format stands on a Display Unit (`shown`) its page is called with what is pending, so that each key is
/// seen once, however often the picture is painted; otherwise a line key waits.
void StepCdu(int side, bool shown);

/// Calls the side's page with a line key, 0 = none: then it only draws.
void CallPage(Graphics& graphics, int side, int line);
