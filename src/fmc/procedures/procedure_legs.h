#pragma once

// The selected procedures filtered to the legs that go into the route: what `plan.mod.procedures` and the
// runways name, out of the lists of the airports at both ends. A name that no longer stands there gives an
// empty list.

/// DepartureLegs, at most 80: the SID's legs for the departure runway, then those of the chosen transition.
/// Its coded legs are computed anew from the chosen runway on.
void BuildDepartureLegs();

/// ArrivalLegs: those of the chosen transition, then those of the STAR that hold for the runway.
void BuildArrivalLegs();

/// ApproachLegs with `approach_via`, and `plan.mod.procedures.appr_type`.
void BuildApproachLegs();

/// The transitions of the selected approach, at most 50.
void BuildApproachTransitions();

/// The departure runway and its place in the list as the pages show them: a modification's before the active
/// route's.
const char* SelectedDepartureRunway();
