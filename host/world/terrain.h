#pragma once

#include <string>

// Ground elevation of the stand-in world: flat, or a smooth surface through the airports of apts.txt.

namespace host {

/// Metres above sea level at a point; the surface falls to 0 far from every airport.
double GroundElevationMetres(double lat, double lon);

void UseFlatTerrain(double metres);
/// Reads the airports of an apts.txt; a missing file gives sea level everywhere.
void UseModelTerrain(const std::string& apts_file);

}  // namespace host
