#pragma once

// The selected procedures written into FlightPlanMod. What an earlier selection of the same kind has written
// goes first, so that a procedure can be changed or, with an empty list, removed at any time.

/// DepartureLegs behind the origin, which stands on the threshold of a selected runway.
void InsertDeparture();

/// ArrivalLegs behind the last leg of the route before an approach. A fix that the route ends with is shared.
void InsertArrival();

/// ApproachLegs at the end, with the missed approach where it is wanted, then the destination. A fix that the
/// route ends with becomes the approach's first; otherwise a "DISCO" stands between.
void InsertApproach();

/// Takes both out of FlightPlanMod, for a change of the destination, and leaves the selections alone.
void RemoveArrivalAndApproach();
