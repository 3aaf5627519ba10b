#pragma once

#include <string>

// What lies ahead of the aircraft as the pages tell it. Miles, pounds.

/// The fuel that is counted with: that in the tanks, and what an entry has added.
double TotalFuel();

/// Fast enough (75 kt) for times and fuel to be told at all.
bool HasEstimates();

/// Magnetic bearing, 1 to 360 where it is rounded.
double BearingFromAircraft(double lat, double lon);

/// Distance along the active route to one of its legs; below 0 where there is none that is flown to.
double DistanceAlongRoute(int leg);

/// The time of day at a place so far ahead at the present ground speed, "1432Z"; empty without estimates.
std::string EtaAfter(double distance);
