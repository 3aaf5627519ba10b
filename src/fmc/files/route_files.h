#pragma once

#include <string_view>

// Stored flight plans: route files (.rte), and those of the host's flight planner (.PLN), which are converted
// first. A route file is text: lines KEY=VALUE, a line "[FlightPlan]", then one row a leg, fields divided by
// blanks, "---" where there is none; ";" begins a comment.

/// Fills `route_files.RouteFiles` with the stored plans of the folder.
void ListRouteFiles();

/// The stored plan whose name begins with a text, letters in any case: its place in the list, 0 = none.
int FindRouteFile(std::string_view prefix);

/// Reads a stored plan into FlightPlanMod. 1 = legs have been read. 0: a file that can't be read leaves
/// FlightPlanMod without legs, and opens a modification of an active route so that ERASE brings it back; a
/// planner's file that can't be read changes nothing.
int LoadCompanyRoute(std::string_view name);

/// Writes FlightPlan to a file of the folder, whole or not at all; a leg of another type becomes a "WPT", in
/// the list too. 1 = written; 0 = not, also for a name that is none of a file in the folder.
int SaveCompanyRoute(std::string_view name);
