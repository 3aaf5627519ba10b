#include "navdata/geodesy.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"

namespace {

double Sin(double deg) {
    return std::sin(deg * kRadPerDeg);
}
double Cos(double deg) {
    return std::cos(deg * kRadPerDeg);
}
// Rounding takes arguments a hair outside, for equal and for opposite points.
double SafeAcos(double x) {
    return std::acos(std::clamp(x, -1.0, 1.0));
}
double SafeAsin(double x) {
    return std::asin(std::clamp(x, -1.0, 1.0));
}
// Into -pi to below pi.
double FoldRad(double angle) {
    return angle - 2 * kPi * std::floor((angle + kPi) / (2 * kPi));
}

int DigitAt(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9' ? text[at] - '0' : 0;
}

// "H", degrees, ":", minutes, ":", seconds of the absolute value, each cut to a whole number.
std::string DegMinSec(char hemisphere, double angle) {
    const double deg = std::fabs(angle);
    const double min = (deg - std::floor(deg)) * 60;
    const double sec = (min - std::floor(min)) * 60;
    return Format("%c%02.0f:%02.0f:%02.0f", hemisphere, std::floor(deg), std::floor(min), std::floor(sec));
}

double ParseCompactAngle(std::string_view text, std::size_t degree_digits) {
    double deg = 0;
    std::size_t at = 1;
    for (; at <= degree_digits; ++at) deg = deg * 10 + DigitAt(text, at);
    const int min = DigitAt(text, at) * 10 + DigitAt(text, at + 1);
    const std::size_t point = text.find('.');
    const int sec = point == std::string_view::npos ? 0 : DigitAt(text, point + 1) * 6;
    return deg + (sec / 60.0 + min) / 60.0;
}

double ParseColonAngle(std::string_view text) {
    if (text.empty()) return 0;
    double parts[3] = {};
    int part = 0;
    double place = 0;  // of the next digit behind a point, 0 before one
    for (const char c : text.substr(1)) {
        if (c == ':' && ++part == 3) break;
        if (c == ':') place = 0;
        if (c == '.') place = 0.1;
        if (c < '0' || c > '9') continue;
        parts[part] = place > 0 ? parts[part] + (c - '0') * place : parts[part] * 10 + (c - '0');
        place /= 10;
    }
    const double angle = parts[0] + (parts[2] / 60 + parts[1]) / 60;
    return text[0] == 'S' || text[0] == 'W' ? -angle : angle;
}

// Initial bearing in radians between points `dist` radians apart; east_of: point 2 lies east of point 1.
double BearingRad(double lat1, double lat2, double dist, bool east_of) {
    const double angle = SafeAcos((Sin(lat2) - Sin(lat1) * std::cos(dist)) / (std::sin(dist) * Cos(lat1)));
    return east_of ? angle : 2 * kPi - angle;
}

}  // namespace

DistBearing GreatCircle(double lat1, double lon1, double lat2, double lon2) {
    if (lat1 == lat2 && lon1 == lon2) return {0, 0};
    const double sin1 = Sin(lat1), cos1 = Cos(lat1), sin2 = Sin(lat2), cos2 = Cos(lat2);
    const double sin_d = Sin(lon2 - lon1), cos_d = Cos(lon2 - lon1);
    const double dist = SafeAcos(cos2 * cos1 * cos_d + sin2 * sin1) * kEarthRadiusNm;
    double bearing = std::atan2(sin_d * cos2, sin2 * cos1 - sin1 * cos2 * cos_d) * kDegPerRad;
    if (bearing < 0) bearing += 360;
    if (bearing >= 360) bearing = 0;
    return {dist, bearing};
}

LatLon ProjectPoint(double lat, double lon, double bearing, double dist) {
    if (bearing == 360) bearing = 0;
    const double delta = dist * kPi / 10800;
    const double sin1 = Sin(lat), cos1 = Cos(lat);
    const double sin2 = Cos(bearing) * std::sin(delta) * cos1 + std::cos(delta) * sin1;
    const double new_lat = SafeAsin(sin2) * kDegPerRad;
    // Within a hand's breadth of a pole a longitude means nothing, and atan2 would give noise.
    constexpr double kAtPole = 1 - 1e-15;
    if (std::fabs(sin1) > kAtPole || std::fabs(sin2) > kAtPole) return {new_lat, lon};
    const double step = std::atan2(Sin(bearing) * std::sin(delta) * cos1, std::cos(delta) - sin2 * sin1);
    return {new_lat, FoldRad(lon * kRadPerDeg + step) * kDegPerRad};
}

int IntersectBearings(double lat1, double lon1, double brg1, double lat2, double lon2, double brg2,
                      double& lat, double& lon) {
    constexpr int kNoCrossing = -99;
    const double crs13 = (brg1 == 360 ? 0 : brg1) * kRadPerDeg;
    const double crs23 = (brg2 == 360 ? 0 : brg2) * kRadPerDeg;
    const double half_lat = Sin((lat1 - lat2) / 2), half_lon = Sin((lon1 - lon2) / 2);
    const double dist12 =
        2 * SafeAsin(std::sqrt(half_lat * half_lat + Cos(lat1) * Cos(lat2) * half_lon * half_lon));
    if (std::sin(dist12) == 0) return kNoCrossing;

    const bool east = Sin(lon2 - lon1) > 0;
    const double crs12 = BearingRad(lat1, lat2, dist12, east);
    const double crs21 = BearingRad(lat2, lat1, dist12, !east);
    double ang1 = FoldRad(crs13 - crs12);
    double ang2 = FoldRad(crs21 - crs23);
    // Negated, so that a NaN ends here too.
    if (!(std::sin(ang1) * std::sin(ang2) > std::sqrt(1e-15))) return kNoCrossing;

    ang1 = std::fabs(ang1);
    ang2 = std::fabs(ang2);
    const double ang3 =
        SafeAcos(-std::cos(ang1) * std::cos(ang2) + std::sin(ang1) * std::sin(ang2) * std::cos(dist12));
    const double dist13 = std::atan2(std::sin(dist12) * std::sin(ang1) * std::sin(ang2),
                                     std::cos(ang2) + std::cos(ang1) * std::cos(ang3));
    const LatLon crossing = ProjectPoint(lat1, lon1, brg1, dist13 * kEarthRadiusNm);
    lat = crossing.lat;
    lon = crossing.lon;
    return 0;
}

WindParts WindComponents(double heading, double wind_dir, double wind_spd) {
    const double clockwise = wind_dir - heading - 360 * std::floor((wind_dir - heading) / 360);
    const bool from_left = clockwise > 180;
    double angle = from_left ? 360 - clockwise : clockwise;
    const bool tailwind = angle > 90;
    if (angle >= 91) angle = 90 - (angle - 90);
    const double limit = 1e6;  // keeps a nonsense speed inside an int
    const int crosswind = static_cast<int>(std::fmin(std::fabs(Sin(angle) * wind_spd), limit));
    const int headwind = static_cast<int>(std::fmin(std::fabs(Cos(angle) * wind_spd), limit));
    return {from_left ? -crosswind : crosswind, tailwind ? headwind : -headwind};
}

std::string FormatLatitude(double lat) {
    return DegMinSec(lat < 0 ? 'S' : 'N', lat);
}

std::string FormatLongitude(double negated_lon) {
    return DegMinSec(negated_lon < 0 ? 'E' : 'W', negated_lon);
}

LatLon ParseLatLonCompact(std::string_view lat_text, std::string_view lon_text) {
    return {ParseCompactAngle(lat_text, 2), ParseCompactAngle(lon_text, 3)};
}

LatLon ParseLatLonColons(std::string_view lat_text, std::string_view lon_text) {
    return {ParseColonAngle(lat_text), ParseColonAngle(lon_text)};
}
