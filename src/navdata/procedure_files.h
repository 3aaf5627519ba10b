#pragma once

#include "state/airports.h"

// The departures, arrivals and approaches of an airport, from sids.txt, stars.txt and apps.txt. The slot must
// hold the airport already: runways and elevation are what coded legs are computed from. Each replaces the
// slot's list; without the file, or the airport's section in it, the list is empty. A leg that can't be
// computed is left out.

void LoadSids(AirportData& airport);
void LoadStars(AirportData& airport);
/// Also the list of approach kinds.
void LoadApproaches(AirportData& airport);

/// The next name of a list with "," between ("16L,16R"), cut off its front; empty at the end.
std::string_view NextListed(std::string_view& list);
bool ListNames(std::string_view list, std::string_view name);

bool HasRunway(const AirportData& airport, std::string_view runway);

/// Where a departure's first coded leg starts: past the runway's threshold, in its direction. False when the
/// airport has no runway of that name.
bool StartOfClimb(const AirportData& airport, std::string_view runway, int variation, double& lat,
                  double& lon, double& course);
