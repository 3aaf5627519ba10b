#pragma once

#include <string>

// Words that the navigation display and the compass of the primary flight display share.

/// When a place so many nm away is passed at the present ground speed: hours, minutes and tenths of a minute
/// UTC, "0006.5", cut and never rounded; dashes up to 50 kt.
std::string TimeOfPassage(double nm);

/// Ticks until the inertial unit that is ready first is aligned; 0 when none aligns.
int TicksToAlign();
