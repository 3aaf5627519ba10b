#pragma once

#include "state/airports.h"

// What follows from the figures of a take-off.

/// The weight (lb) that the take-off speeds are for: the one entered, else the gross weight.
double TakeoffWeight();

/// V1, VR and V2 for the take-off flaps, those that the crew hasn't entered.
void ComputeTakeoffSpeeds();

/// The same where the configuration has the speeds filled in and flaps are selected.
void UpdateTakeoffSpeeds();

/// Units of trim for the centre of gravity that has been entered; the old trim stands without one.
void ComputeTakeoffTrim();

/// The selected departure runway, null when there is none.
const RunwayData* DepartureRunway();

/// Splits the take-off wind along and across the departure runway; the old components stand without one.
void ComputeRunwayWind();

/// All that the crew has to enter before a flight has been entered, and the route is in force.
bool IsPreflightComplete();
