#pragma once

/// Takes the flight plan that the host's own GPS holds into FlightPlanMod, as a loaded route, and shows RTE
/// on the side's CDU. The highest waypoint is the pending cruise altitude. Without a plan of at least two
/// waypoints the crew of that side is told, and nothing changes.
void ImportHostGpsRoute(int side);
