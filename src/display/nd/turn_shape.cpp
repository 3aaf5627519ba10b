#include "display/nd/turn_shape.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"

namespace {

constexpr double kPlainCorner = 15;  // degrees: a lesser change of course is drawn as it stands
constexpr double kSharpest = 175;
constexpr double kSmallest = 1;  // units: a turn smaller than that can't be told from a corner

MapPoint Unit(MapPoint from, MapPoint to, double& length) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    length = std::hypot(dx, dy);
    return length > 0 ? MapPoint{dx / length, dy / length} : MapPoint{0, 0};
}

void Add(TurnShape& shape, MapPoint p) {
    if (shape.count < shape.points.size())
        shape.points[shape.count++] = {static_cast<float>(p.x), static_cast<float>(p.y)};
}

// An arc from a point in a direction; `side` 1 turns right on the screen. Gives the point and direction of
// its end.
void AddArc(TurnShape& shape, MapPoint& at, MapPoint& heading, double angle, double radius, int side) {
    const MapPoint middle{at.x - heading.y * radius * side, at.y + heading.x * radius * side};
    const MapPoint spoke{at.x - middle.x, at.y - middle.y};
    // Chords that stay within a tenth of a unit.
    const double step = radius > 0.4 ? std::sqrt(0.8 / radius) : 1;
    const int chords = std::clamp(static_cast<int>(std::ceil(angle / step)), 2, 24);
    for (int i = 1; i <= chords; ++i) {
        const double turned = angle * i / chords * side;
        const double c = std::cos(turned), s = std::sin(turned);
        at = {middle.x + spoke.x * c - spoke.y * s, middle.y + spoke.x * s + spoke.y * c};
        Add(shape, at);
    }
    const double c = std::cos(angle), s = std::sin(angle) * side;
    heading = {heading.x * c - heading.y * s, heading.x * s + heading.y * c};
}

// Behind a fix that is overflown the aircraft comes back to the next leg at an angle.
void AddJoin(TurnShape& shape, MapPoint fix, MapPoint along, MapPoint at, MapPoint heading, int side,
             double room) {
    const MapPoint off{at.x - fix.x, at.y - fix.y};
    const double beside = -(along.x * off.y - along.y * off.x) * side;
    const double closing = (along.x * heading.y - along.y * heading.x) * side;  // sine of the angle
    if (beside <= 0 || closing <= 0.05) return;
    const double run = beside / closing;
    const double ahead =
        off.x * along.x + off.y * along.y + (heading.x * along.x + heading.y * along.y) * run;
    shape.joins = std::clamp(ahead, 0.0, room);
    Add(shape, {fix.x + along.x * shape.joins, fix.y + along.y * shape.joins});
}

}  // namespace

TurnShape ShapeTurn(MapPoint before, MapPoint fix, MapPoint after, const FixTurn& turn, bool fly_over,
                    double scale, double room) {
    TurnShape shape;
    double length_in = 0, length_out = 0;
    MapPoint heading = Unit(before, fix, length_in);
    const MapPoint along = Unit(fix, after, length_out);
    if (length_in == 0 || length_out == 0) return shape;
    const double cross = heading.x * along.y - heading.y * along.x;
    const double angle = std::atan2(std::fabs(cross), heading.x * along.x + heading.y * along.y);
    if (!(angle * kDegPerRad >= kPlainCorner)) return shape;
    const int side = cross >= 0 ? 1 : -1;

    shape.leaves = std::clamp(turn.begins * scale, 0.0, std::max(std::min(room, length_in), 0.0));
    MapPoint at{fix.x - heading.x * shape.leaves, fix.y - heading.y * shape.leaves};
    if (fly_over) {
        constexpr double kClosing = 20 * kRadPerDeg;
        const double radius = turn.radius * scale;
        if (!(radius >= kSmallest)) return {};
        Add(shape, at);
        AddArc(shape, at, heading, std::min(angle + kClosing, kPi), radius, side);
        AddJoin(shape, fix, along, at, heading, side, length_out);
        return shape;
    }
    shape.leaves = std::min(shape.leaves, length_out);
    if (!(shape.leaves >= kSmallest)) return {};
    at = {fix.x - heading.x * shape.leaves, fix.y - heading.y * shape.leaves};
    shape.joins = shape.leaves;
    Add(shape, at);
    const double drawn = std::min(angle, kSharpest * kRadPerDeg);
    AddArc(shape, at, heading, angle, shape.leaves / std::tan(drawn / 2), side);
    return shape;
}
