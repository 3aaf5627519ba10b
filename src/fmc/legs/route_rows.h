#pragma once

/// Makes plan.Route, the rows of the RTE page, from FlightPlanMod: an airway or a procedure stands in one row
/// that ends at its last fix. The destination has no row.
void RebuildRouteRows();

/// The leg of FlightPlanMod that ends a row, 0 for a row without an end fix (an open airway, a discontinuity,
/// no such row). With `want_via` the leg's via must be the row's, too.
int FindRouteFix(int row, bool want_via);

/// The legs of FlightPlanMod that a row stands for; both 0 when there is no such row.
struct RowLegs {
    int first = 0, last = 0;
};
RowLegs FindRowLegs(int row);
