#include "display/nd/map_view.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/angles.h"
#include "navdata/geodesy.h"

namespace {

double Dot(Direction a, Direction b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Direction Mix(Direction a, double of_a, Direction b, double of_b) {
    return {a.x * of_a + b.x * of_b, a.y * of_a + b.y * of_b, a.z * of_a + b.z * of_b};
}

// Into -180 to 180.
double FoldLongitude(double lon) {
    return std::remainder(lon, 360);
}

}  // namespace

void OrientMap(MapView& view) {
    if (!(std::fabs(view.lat) <= 90) || !(std::fabs(view.lon) <= 360)) view.lat = view.lon = 0;
    if (!std::isfinite(view.up)) view.up = 0;
    const double lat = view.lat * kRadPerDeg, lon = view.lon * kRadPerDeg, up = view.up * kRadPerDeg;
    const Direction east{-std::sin(lon), std::cos(lon), 0};
    const Direction north{-std::sin(lat) * std::cos(lon), -std::sin(lat) * std::sin(lon), std::cos(lat)};
    view.centre = DirectionTo(view.lat, view.lon);
    view.right = Mix(east, std::cos(up), north, -std::sin(up));
    view.ahead = Mix(north, std::cos(up), east, std::sin(up));

    constexpr double kRanges = 1.5, kMargin = 10, kNmPerDegree = 60;
    view.lat_reach = (kRanges * view.range + kMargin) / kNmPerDegree;
    const bool holds_pole = std::fabs(view.lat) + view.lat_reach >= 89.9;
    view.lon_reach =
        holds_pole
            ? 180
            : std::asin(std::min(std::sin(view.lat_reach * kRadPerDeg) / std::cos(lat), 1.0)) * kDegPerRad;
}

void EnterMapFrame(Graphics& graphics, const MapView& view) {
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, view.centre_x, view.centre_y);
}

Direction DirectionTo(double lat, double lon) {
    const double cos_lat = std::cos(lat * kRadPerDeg);
    return {cos_lat * std::cos(lon * kRadPerDeg), cos_lat * std::sin(lon * kRadPerDeg),
            std::sin(lat * kRadPerDeg)};
}

MapPoint PointOnMap(const MapView& view, Direction place) {
    const double right = Dot(place, view.right), ahead = Dot(place, view.ahead);
    const double across = std::sqrt(right * right + ahead * ahead);
    if (across < 1e-12) return {0, 0};  // the centre, or the place opposite, which lies on no bearing
    const double dist = std::atan2(across, Dot(place, view.centre)) * kEarthRadiusNm * view.scale;
    return {right / across * dist, -ahead / across * dist};
}

MapPoint PointOnMap(const MapView& view, double lat, double lon) {
    return PointOnMap(view, DirectionTo(lat, lon));
}

bool IsInReach(const MapView& view, double lat, double lon) {
    if (!(std::fabs(lat - view.lat) <= view.lat_reach)) return false;
    const double east = std::fabs(lon - view.lon);
    return east <= view.lon_reach || east >= 360 - view.lon_reach;
}

bool IsLegInReach(const MapView& view, double lat1, double lon1, double lat2, double lon2) {
    // A great circle swells towards its pole, and a leg that is long in longitude may pass anywhere.
    constexpr double kShort = 20, kSwell = 0.5;
    const double turn = FoldLongitude(lon2 - lon1);
    if (std::fabs(turn) > kShort) return true;
    const double south = view.lat - view.lat_reach - kSwell, north = view.lat + view.lat_reach + kSwell;
    if ((lat1 < south && lat2 < south) || (lat1 > north && lat2 > north)) return false;
    const double from = FoldLongitude(lon1 - view.lon), to = from + turn;
    return std::max(from, to) >= -view.lon_reach && std::min(from, to) <= view.lon_reach;
}

bool ClipLine(const MapBox& box, MapPoint& a, MapPoint& b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    double first = 0, last = 1;
    const struct {
        double step, room;
    } kEdges[] = {{-dx, a.x - box.left}, {dx, box.right - a.x}, {-dy, a.y - box.top}, {dy, box.bottom - a.y}};
    for (const auto& edge : kEdges) {
        if (edge.step == 0) {
            if (!(edge.room >= 0)) return false;
            continue;
        }
        const double at = edge.room / edge.step;
        if (edge.step < 0)
            first = std::max(first, at);
        else
            last = std::min(last, at);
    }
    if (!(first <= last)) return false;
    const MapPoint begin = a;
    a = {begin.x + first * dx, begin.y + first * dy};
    b = {begin.x + last * dx, begin.y + last * dy};
    return true;
}

void DrawMapLine(Graphics& graphics, const Pen& pen, const MapView& view, MapPoint a, MapPoint b) {
    // Far ends are cut off, near ones stay, so that a dash pattern doesn't creep along the line.
    constexpr double kFar = 15000, kPenRoom = 20;
    MapPoint seen_a = a, seen_b = b;
    const MapBox room{view.seen.left - kPenRoom, view.seen.top - kPenRoom, view.seen.right + kPenRoom,
                      view.seen.bottom + kPenRoom};
    if (!ClipLine(room, seen_a, seen_b)) return;
    if (!ClipLine({-kFar, -kFar, kFar, kFar}, a, b)) return;
    GdipDrawLine(graphics, pen, a.x, a.y, b.x, b.y);
}

void DrawArcLine(Graphics& graphics, const Pen& pen, MapPoint middle, double radius, double start,
                 double sweep) {
    constexpr double kChordsPerTurn = 96;
    std::array<PaintPoint, 97> points;
    const double share = std::clamp(std::fabs(sweep) / 360 * kChordsPerTurn, 1.0, kChordsPerTurn);
    const auto chords = static_cast<std::size_t>(share);
    for (std::size_t i = 0; i <= chords; ++i) {
        const double angle =
            (start + sweep * static_cast<double>(i) / static_cast<double>(chords)) * kRadPerDeg;
        points[i] = {static_cast<float>(middle.x + std::cos(angle) * radius),
                     static_cast<float>(middle.y + std::sin(angle) * radius)};
    }
    GdipDrawLines(graphics, pen, {points.data(), chords + 1});
}

void DrawCircle(Graphics& graphics, const Pen& pen, MapPoint middle, double diameter) {
    const Matrix world = graphics.world;
    GdipTranslateWorldTransform(graphics, middle.x, middle.y);
    const int half = static_cast<int>(diameter / 2);
    GdipDrawEllipseI(graphics, pen, -half, -half, 2 * half, 2 * half);
    graphics.world = world;
}
