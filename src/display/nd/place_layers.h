#pragma once

#include <string_view>

#include "display/nd/nd_frame.h"
#include "navdata/geodesy.h"

// What the navigation database puts on the map.

/// Navaids; with the receivers' stations, their lines and radials, as the pilot has chosen.
void DrawStations(Graphics& graphics, const NdFrame& frame);
/// Airports, those with long runways first: where there are too many to be read the others are left out.
void DrawAirports(Graphics& graphics, const NdFrame& frame);
/// Origin and destination.
void DrawRouteAirports(Graphics& graphics, const MapView& view);
/// Fixes of airways.
void DrawFixes(Graphics& graphics, const NdFrame& frame);

/// The item of the layers that are on nearest to a place, at most a mile from it: airports before stations
/// before fixes. An empty ident: there is none.
struct NearItem {
    std::string_view ident;
    LatLon at;
};
NearItem ItemNear(int side, double lat, double lon);
