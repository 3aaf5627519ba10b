#pragma once

#include <string_view>

#include "state/airports.h"

// The airports and runways of the two performance pages.

/// Makes an airport the one of take-off or landing, without a runway; its results go. False, and nothing
/// changes, for an airport that isn't known.
bool ChooseTakeoffAirport(std::string_view ident);
bool ChooseLandingAirport(std::string_view ident);

/// Makes a runway of that airport the one, with its length, elevation and heading; another ident leaves none.
void ChooseTakeoffRunway(std::string_view ident);
void ChooseLandingRunway(std::string_view ident);
