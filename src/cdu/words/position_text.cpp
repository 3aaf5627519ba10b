#include "cdu/words/position_text.h"

#include <cmath>

#include "base/text.h"

namespace {

std::string AngleText(double degrees, char letter, int width, const char* degree_sign) {
    // Tenths of a minute, so that 59.96 doesn't show as 60.0.
    const long tenths = std::lround(std::fabs(degrees) * 600);
    return Format("%c%0*ld%s%04.1f", letter, width, tenths / 600, degree_sign,
                  static_cast<double>(tenths % 600) / 10);
}

}  // namespace

std::string LatitudeText(double lat, const char* degree_sign) {
    return AngleText(lat, lat < 0 ? 'S' : 'N', 2, degree_sign);
}

std::string LongitudeText(double lon, const char* degree_sign) {
    return AngleText(lon, lon < 0 ? 'W' : 'E', 3, degree_sign);
}

std::string PositionText(double lat, double lon) {
    return LatitudeText(lat, "") + LongitudeText(lon, "");
}
