#pragma once

#include <string_view>

// The airports at the two ends of the route, and their runways.

/// Fills the slot of the origin or the destination, its departures or its arrivals and approaches with it. 1,
/// or 0 when the airport isn't in the database (nothing changes).
int LoadOriginAirport(std::string_view ident);
int LoadDestinationAirport(std::string_view ident);

/// Selects a runway of the origin ("16L"); 0 when it has none of that name. Below state 3 the first leg of
/// both lists moves to its threshold; afterwards it is a modification, and EXEC moves the leg.
int SelectOriginRunway(std::string_view runway);

/// No arrival and no approach is selected any more, as after a change of the destination.
void ClearArrivalSelections();

/// Selects a runway of the destination for the working copy; EXEC puts the last leg on its threshold. 0 when
/// it has none of that name.
int SelectDestinationRunway(std::string_view runway);
