#pragma once

#include "state/plan.h"

// What the route pages show: the active route in state 3, the working copy in every other state.

const FlightPlanLeg& ShownLeg(int index);
int ShownCount();
/// The leg that is flown to, in the list that is shown; 0 = none.
int ShownActiveLeg();

/// Where the legs begin that are still to be flown: the active leg, or the first.
int FirstShownLeg();

/// Course (degrees magnetic, 1 to 360) and distance (nm) of a shown leg from the place before it.
struct ShownTrack {
    bool known = false;
    double course = 0;
    double dist = 0;
};
ShownTrack TrackToLeg(int index);

/// Distance (nm) to a shown leg from the place before it; of the leg that is flown what is left of it.
double DistanceTo(int leg);
