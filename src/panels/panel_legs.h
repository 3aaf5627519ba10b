#pragma once

#include <string>
#include <string_view>

#include "state/plan.h"

// A leg of the route as a panel state file has it: fields with commas between, an empty one for an empty
// text.

std::string PanelLegText(const FlightPlanLeg& leg);

/// Fields that the text lacks keep what an empty leg has; a number that can't be one counts as 0.
FlightPlanLeg PanelLegOf(std::string_view text);
