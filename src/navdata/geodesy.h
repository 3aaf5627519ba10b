#pragma once

#include <string>
#include <string_view>

// The sphere on which all navigation runs. Degrees, north and east positive; bearings true; nautical miles.

constexpr double kEarthRadiusNm = 3437.7467707849396;

struct DistBearing {
    double dist;
    double bearing;
};

struct LatLon {
    double lat;
    double lon;
};

/// Great-circle distance and initial bearing (0 to below 360) from point 1 to point 2. Equal points give 0,
/// 0. Spherical law of cosines; E. Williams, Aviation Formulary, "Distance between points".
DistBearing GreatCircle(double lat1, double lon1, double lat2, double lon2);

/// The point at a distance along an initial bearing; 360 reads as 0. At a pole the longitude stays.
LatLon ProjectPoint(double lat, double lon, double bearing, double dist);

/// Where two great circles given by a point and a bearing each cross. Result 0, or -99 and the outputs
/// unchanged when there is no crossing. Aviation Formulary, "Intersecting radials".
int IntersectBearings(double lat1, double lon1, double brg1, double lat2, double lon2, double brg2,
                      double& lat, double& lon);

struct WindParts {
    int crosswind;  // kt, negative from the left
    int headwind;   // kt, negative for a headwind, positive for a tailwind
};
WindParts WindComponents(double heading, double wind_dir, double wind_spd);

/// "N47:26:09"; a number below 10 is preceded by "0".
std::string FormatLatitude(double lat);
/// The letter is "E" for a negative argument: pass the longitude negated.
std::string FormatLongitude(double negated_lon);

/// A position as the CDU shows it, "N4726.1" and "W12218.5". No sign is taken from the letter.
LatLon ParseLatLonCompact(std::string_view lat_text, std::string_view lon_text);

/// Degrees, minutes and seconds behind the letter, ":" between, each with decimals or without; "S" and "W"
/// are negative.
LatLon ParseLatLonColons(std::string_view lat_text, std::string_view lon_text);
