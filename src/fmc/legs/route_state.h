#pragma once

// How far the route is: entered, activated, executed, modified.

/// Moves `fms_fpln_active` on: 0 to 1, 1 to 2, 2 to 3, 3 to 4 (the TO leg is then kept as the pending active
/// leg), 4 to 3. On the ground below 5 kt it also loads the planned fuel, once, and sets the MCP
/// altitude to a pending cruise altitude of 1000 ft or more, as far as the configuration wants that.
void AdvanceRouteState();

/// AdvanceRouteState where an edit opens something: in the states 0 (a first entry) and 3 (a modification).
void OpenModification();
