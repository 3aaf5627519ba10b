#pragma once

#include <string>

/// Hours for a distance (nm): at the present ground speed, or where the aircraft is too slow for that at the
/// planned one. 0 without either.
double HoursFor(double distance);

/// The time of day, UTC, some hours from now, "1432Z".
std::string EtaText(double hours_from_now);
