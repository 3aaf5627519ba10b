#pragma once

#include <string_view>

// The two ends of the route, as the RTE page enters them.

/// Starts a new route at an airport: both leg lists begin there, everything selected or planned before is
/// gone, the state is 0. 1, or 0 when the airport isn't in the database (nothing changes).
int EnterOrigin(std::string_view ident);

/// Makes an airport the last leg of FlightPlanMod; arrival selections go. In state 3 a modification is opened
/// and the old arrival's legs are removed. 1, or 0 when the airport isn't in the database.
int EnterDestination(std::string_view ident);
