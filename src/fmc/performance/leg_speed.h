#pragma once

#include "state/plan.h"

/// The ground speed (kt) that is planned for passing a leg's fix: climb, cruise or descent speed by where the
/// leg lies, with its constraint and the speed limits, at its predicted altitude and in its wind. The present
/// one when the leg has no predicted altitude.
double PlannedGroundSpeed(const RouteVersion& route, int leg);
