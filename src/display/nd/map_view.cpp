#include "display/nd/map_view.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "navdata/geodesy.h"

namespace {

constexpr double kRoom = 80;  // units, for a label, and what the flat earth is wrong by

// Into -180 to 180, for the difference of two longitudes.
double FoldDifference(double lon) {
    return lon > 180 ? lon - 360 : lon < -180 ? lon + 360 : lon;
}

struct SinCos {
    double sin, cos;
};

// Of a small angle, up to a tenth of a radian, by series: to twelve places.
SinCos SmallSinCos(double x) {
    const double xx = x * x;
    return {x * (1 - xx / 6 * (1 - xx / 20 * (1 - xx / 42))),
            1 - xx / 2 * (1 - xx / 12 * (1 - xx / 30 * (1 - xx / 56)))};
}
SinCos FullSinCos(double x) {
    return {std::sin(x), std::cos(x)};
}
constexpr double kSmall = 0.1;

SinCos SinCosOf(double x) {
    return std::fabs(x) < kSmall ? SmallSinCos(x) : FullSinCos(x);
}

// The arc that belongs to its sine and cosine, as parts of its sine.
double ArcOverSine(double sine, double cosine) {
    const double ss = sine * sine;
    if (sine < kSmall && cosine > 0)
        return 1 + ss / 6 * (1 + ss * 9 / 20 * (1 + ss * 25 / 42 * (1 + ss * 49 / 72)));
    return std::atan2(sine, cosine) / sine;
}

}  // namespace

void OrientMap(MapView& view) {
    if (!(std::fabs(view.lat) <= 90) || !(std::fabs(view.lon) <= 360)) view.lat = view.lon = 0;
    if (!std::isfinite(view.up)) view.up = 0;
    const double lat = view.lat * kRadPerDeg, up = view.up * kRadPerDeg;
    view.sin_lat = std::sin(lat);
    view.cos_lat = std::cos(lat);
    view.sin_up = std::sin(up);
    view.cos_up = std::cos(up);

    constexpr double kFlatRange = 80, kFlatLatitude = 70;
    view.is_flat = view.range <= kFlatRange && std::fabs(view.lat) <= kFlatLatitude;
    view.north_scale = 60 * view.scale;
    view.east_scale = view.north_scale * view.cos_lat;

    constexpr double kRanges = 1.5, kMargin = 10, kNmPerDegree = 60;
    double reach = kRanges * view.range + kMargin;
    // On a large map the farthest corner of the view lies nearer, with the label of a place beyond it.
    if (view.range > kFlatRange) {
        const double across = std::max(-view.seen.left, view.seen.right);
        const double down = std::max(-view.seen.top, view.seen.bottom);
        reach = std::min(reach, (std::hypot(across, down) + kRoom) / view.scale);
    }
    view.lat_reach = reach / kNmPerDegree;
    const bool holds_pole = std::fabs(view.lat) + view.lat_reach >= 89.9;
    view.lon_reach =
        holds_pole
            ? 180
            : std::asin(std::min(std::sin(view.lat_reach * kRadPerDeg) / view.cos_lat, 1.0)) * kDegPerRad;
}

void EnterMapFrame(Graphics& graphics, const MapView& view) {
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, view.centre_x, view.centre_y);
}

MapPoint PointOnMap(const MapView& view, double lat, double lon) {
    const double turn = FoldDifference(lon - view.lon) * kRadPerDeg;
    const SinCos north_of = SinCosOf((lat - view.lat) * kRadPerDeg), east_of = SinCosOf(turn);
    const double cos_lat = view.cos_lat * north_of.cos - view.sin_lat * north_of.sin;
    const double bend = cos_lat * (1 - east_of.cos);  // what the parallel curves towards the pole
    const double east = cos_lat * east_of.sin;
    const double north = north_of.sin + view.sin_lat * bend;
    const double across = std::sqrt(east * east + north * north);
    if (!(across > 1e-12)) return {0, 0};  // the centre, or the place opposite, which lies on no bearing
    const double units =
        ArcOverSine(across, north_of.cos - view.cos_lat * bend) * kEarthRadiusNm * view.scale;
    return {(east * view.cos_up - north * view.sin_up) * units,
            -(north * view.cos_up + east * view.sin_up) * units};
}

bool IsNearbyInReach(const MapView& view, double lat, double lon) {
    const double north = lat - view.lat;
    const double east = FoldDifference(lon - view.lon);
    if (!(std::fabs(east) <= view.lon_reach)) return false;
    if (!view.is_flat) return true;
    const double e = east * view.east_scale, n = north * view.north_scale;
    return view.seen.Has({e * view.cos_up - n * view.sin_up, -n * view.cos_up - e * view.sin_up}, kRoom);
}

bool IsLegInReach(const MapView& view, double lat1, double lon1, double lat2, double lon2) {
    // A great circle swells towards its pole, and a leg that is long in longitude may pass anywhere.
    constexpr double kShort = 20, kSwell = 0.5;
    const double turn = FoldDifference(lon2 - lon1);
    if (std::fabs(turn) > kShort) return true;
    const double south = view.lat - view.lat_reach - kSwell, north = view.lat + view.lat_reach + kSwell;
    if ((lat1 < south && lat2 < south) || (lat1 > north && lat2 > north)) return false;
    const double from = FoldDifference(lon1 - view.lon), to = from + turn;
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

void DrawCircle(Graphics& graphics, const Pen& pen, MapPoint middle, double diameter) {
    constexpr int kHalf = 500;  // a circle of whole numbers, brought to its size
    const double scale = diameter / (2 * kHalf);
    if (!(scale > 0)) return;
    const Matrix world = graphics.world;
    GdipTranslateWorldTransform(graphics, middle.x, middle.y);
    GdipScaleWorldTransform(graphics, scale, scale);
    Pen scaled = pen;
    scaled.width = static_cast<float>(pen.width / scale);
    GdipDrawEllipseI(graphics, scaled, -kHalf, -kHalf, 2 * kHalf, 2 * kHalf);
    graphics.world = world;
}
