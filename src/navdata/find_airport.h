#pragma once

#include <optional>
#include <string_view>

#include "navdata/geodesy.h"
#include "state/nav_tables.h"

/// The airport of that ident among those known, else the first whose name bears the text, letters in any
/// case. Null when there is none.
const AirportRow* FindAirport(std::string_view text);

/// The known airport nearest to the aircraft, the first of several; null without any.
const AirportRow* FindNearestAirport();

/// Where a gate of an airport is, by Parking.txt: sections "[ICAO]" with lines of gate, latitude and
/// longitude. Nothing for a gate that isn't there.
std::optional<LatLon> FindGatePosition(std::string_view airport, std::string_view gate);
