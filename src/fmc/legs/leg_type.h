#pragma once

#include "state/plan.h"

/// Gives a leg its `type` and `freq` by ident and position: "VOR" or "NDB" for a navaid of the database
/// within a mile, else "INT" for a fix; a leg that the database doesn't have keeps its type, and is "INT"
/// without one. Airways and procedures name their fixes without telling which they are.
void LookUpLegType(FlightPlanLeg& leg);
