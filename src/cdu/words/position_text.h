#pragma once

#include <string>

/// Degrees and minutes to a tenth, "N47\xb026.1", "W122\xb018.5".
std::string LatitudeText(double lat, const char* degree_sign);
std::string LongitudeText(double lon, const char* degree_sign);

/// Both in fifteen characters, as the crew types a position: "N4726.1W12218.5".
std::string PositionText(double lat, double lon);
