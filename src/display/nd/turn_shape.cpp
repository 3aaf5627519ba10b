#include "display/nd/turn_shape.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"

namespace {

constexpr double kPlainCorner = 15;  // degrees: a lesser change of course is drawn as it stands
constexpr double kSmallest = 1;      // units: a turn smaller than that can't be told from a corner

MapPoint Unit(MapPoint from, MapPoint to, double& length) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    length = std::hypot(dx, dy);
    return length > 0 ? MapPoint{dx / length, dy / length} : MapPoint{0, 0};
}

// An aircraft that turns right from one leg onto the next, in the frame of the next: nm along it from the fix
// and to the right of it, track in degrees from its course.
struct Turning {
    double along, right, track;
    double rate = 0;  // degrees a second
};

// Of a way across and along; a picture doesn't need it more exactly, and takes many.
double BearingOf(double across, double along) {
    return FoldBearing(std::atan2(static_cast<float>(across), static_cast<float>(along)) *
                       static_cast<float>(kDegPerRad));
}

// One step of LNAV and autopilot. A bank is taken up and left within seconds, and a track is turned to within
// seconds, as AutoflightLogic does it.
void Step(Turning& aircraft, double seconds, double leg_length, double speed, double most_rate) {
    constexpr double kRollSeconds = 4.5, kTurnSeconds = 4;
    const double to_end = leg_length - aircraft.along;
    const double to_fix = std::sqrt(to_end * to_end + aircraft.right * aircraft.right);
    const double flown = to_fix > leg_length ? 0 : leg_length - to_fix;
    const double aim = flown + LnavLookahead(speed) - aircraft.along;
    const double wanted = LnavBearing(BearingOf(-aircraft.right, aim), BearingOf(-aircraft.right, to_end));
    const double off = FoldBearing(wanted - aircraft.track), error = off > 180 ? off - 360 : off;
    const double rate = std::clamp(error / std::max(kTurnSeconds, seconds), -most_rate, most_rate);
    const double change = most_rate / kRollSeconds * seconds, before = aircraft.rate;
    aircraft.rate += std::clamp(rate - before, -change, change);
    // The rate changes at the beginning of the step and then stands.
    const double changing = change > 0 ? std::fabs(aircraft.rate - before) / change : 0;
    const double turned = (aircraft.rate - (aircraft.rate - before) * changing / 2) * seconds;
    const auto middle = static_cast<float>((aircraft.track + turned / 2) * kRadPerDeg);
    const double dist = speed / 3600 * seconds;
    aircraft.along += dist * std::cos(middle);
    aircraft.right += dist * std::sin(middle);
    aircraft.track += turned;
}

// Degrees a second at the bank of LNAV.
double MostTurnRate(double speed) {
    constexpr double kTanBank = 0.5317, kKnotsPerMps = 1.943844, kGravity = 9.80665;
    return kGravity * kTanBank / (speed / kKnotsPerMps) * kDegPerRad;
}

}  // namespace

TurnShape ShapeTurn(MapPoint before, MapPoint fix, MapPoint after, const FixTurn& turn, double speed,
                    double scale, double room) {
    TurnShape shape;
    double length_in = 0, length_out = 0;
    const MapPoint inbound = Unit(before, fix, length_in), outbound = Unit(fix, after, length_out);
    if (length_in == 0 || length_out == 0 || !(scale > 0)) return shape;
    const double cross = inbound.x * outbound.y - inbound.y * outbound.x;
    const double angle =
        std::atan2(std::fabs(cross), inbound.x * outbound.x + inbound.y * outbound.y) * kDegPerRad;
    if (!(angle >= kPlainCorner)) return shape;
    const double leaves = std::clamp(turn.begins * scale, 0.0, std::max(std::min(room, length_in), 0.0));
    constexpr double kSlowest = 60;
    speed = std::max(speed, kSlowest);
    const double most_rate = MostTurnRate(speed);
    if (!(std::max(turn.begins, speed / 3600 / (most_rate * kRadPerDeg)) * scale >= kSmallest)) return shape;

    // Mirrored for a turn to the left.
    const double side = cross >= 0 ? 1 : -1;
    const double begins = leaves / scale, leg_length = length_out / scale;
    Turning aircraft{-begins * std::cos(angle * kRadPerDeg), begins * std::sin(angle * kRadPerDeg), -angle};
    const auto add = [&] {
        const double along = aircraft.along * scale, right = aircraft.right * scale * side;
        shape.points[shape.count++] = {static_cast<float>(fix.x + outbound.x * along - outbound.y * right),
                                       static_cast<float>(fix.y + outbound.y * along + outbound.x * right)};
    };
    shape.leaves = leaves;
    add();
    // Short steps through the turn, long ones while the leg is joined, and on a large map.
    constexpr double kStepAngle = 12, kLongest = 6, kJoining = 12, kOnLeg = 0.05,
                     kOnCourse = 1.5;      // s, nm, degrees
    constexpr double kShortestStep = 2.5;  // units
    const double told_apart = kShortestStep / (speed / 3600 * scale);
    const double in_turn =
        std::max(std::min(kStepAngle / most_rate, kLongest), std::min(told_apart, kJoining));
    while (shape.count < shape.points.size() - 1) {
        const bool turning = std::fabs(aircraft.rate) > most_rate / 4 || aircraft.rate == 0;
        Step(aircraft, turning ? in_turn : kJoining, leg_length, speed, most_rate);
        if (aircraft.along >= leg_length) break;
        add();
        if (std::fabs(aircraft.right) < kOnLeg && std::fabs(aircraft.track) < kOnCourse) break;
    }
    // What is left beside the leg goes over the next stretch of it.
    aircraft.along = std::clamp(aircraft.along + LnavLookahead(speed), 0.0, leg_length);
    aircraft.right = 0;
    shape.joins = aircraft.along * scale;
    add();
    return shape;
}
