#include "fmc/legs/path.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "platform/host.h"
#include "state/sim.h"

namespace {

constexpr double kNmPerFoot = 0.000164579;
constexpr double kTan30 = 0.5773492350590237;   // of 0.523598 rad, the bank of turns below 400 kt
constexpr double kTan20 = 0.36397040368565586;  // of 0.349066 rad, above
constexpr double kSpeedLaw = 11.26;             // kt^2 to feet, g in it

// v^2 / (g tan bank), with the corrections that make the drawn and the flown turn agree.
double TurnRadius(double speed) {
    const double steep = speed * speed / (kTan30 * kSpeedLaw);
    double feet = 0;
    if (speed < 220)
        feet = steep * 0.98;
    else if (speed < 400)
        feet = steep * 1.6e-5 * speed * speed - 0.0074 * speed + 1.83;
    else
        feet = speed * speed / (kTan20 * kSpeedLaw) * 1.32;
    return feet * kNmPerFoot;
}

struct Step {
    double below;  // the row holds for values below this
    double value;
};

constexpr double kAnyValue = 1e9;

// Rows ascend; the last one holds for everything.
template <std::size_t N>
constexpr double ValueFor(const Step (&steps)[N], double x) {
    for (const Step& step : steps)
        if (x < step.below) return step.value;
    return steps[N - 1].value;
}

constexpr Step kFactorOfSpeed[] = {
    {220, 2.05}, {240, 2.0}, {250, 1.8},  {260, 1.3},       {280, 1.08}, {300, 0.93},
    {320, 0.8},  {340, 0.7}, {350, 0.72}, {360, 0.75},      {370, 0.74}, {380, 0.72},
    {400, 0.7},  {440, 0.8}, {460, 0.75}, {kAnyValue, 0.7},
};
constexpr Step kFactorOfAngle[] = {
    {15, 2.0}, {30, 1.8}, {45, 0.95}, {60, 0.9}, {75, 0.85}, {90, 0.88}, {105, 0.92}, {kAnyValue, 0.95},
};

double SpeedTerm(double speed) {
    if (speed <= 370) return speed * 0.001;
    if (speed <= 385) return speed * 0.0013;
    if (speed <= 400) return speed * 0.0024;
    return speed * 0.003;
}

double BaseDistance(double angle, double radius, double speed) {
    if (angle == kTurnOfFlyOverFix) return 0.5;
    if (angle == kTurnOfFarFix) return 0;
    constexpr double kSharpest = 20 * kRadPerDeg;  // inside angle of a 160 degree turn
    const double inside = std::max((180 - angle) * kRadPerDeg, kSharpest);
    const double tangent =
        ((std::cos(inside) + 1) * std::cos(inside) / std::sin(inside) + std::sin(inside)) * radius;
    return tangent * ValueFor(kFactorOfSpeed, speed) * ValueFor(kFactorOfAngle, angle);
}

}  // namespace

double TurnRadiusForGroundSpeed() {
    return TurnRadius(sim.ground_speed_kt);
}

double TurnRadiusForSpeedAndAlt(double speed, double altitude) {
    return TurnRadius(speed + altitude * 0.002);
}

double WaypointChangeDistance(double angle, double radius) {
    const double speed = sim.ground_speed_kt;
    return BaseDistance(angle, radius, speed) + SpeedTerm(speed);
}

FixTurn TurnAtFix(double course_in, double course_out, double speed) {
    FixTurn turn{.angle = AngleBetween(course_in, course_out), .radius = TurnRadius(speed)};
    turn.begins = BaseDistance(turn.angle, turn.radius, speed) + SpeedTerm(speed);
    return turn;
}

double FlyOverDistance(double speed) {
    constexpr double kSecondsBefore = 8;
    return speed / 3600 * kSecondsBefore;
}

double LnavLookahead(double tas) {
    return tas * 0.01;
}

double LnavBearing(double to_aim, double to_fix) {
    constexpr double kWidestAngle = 15, kClosingAngle = 10;
    if (BearingDifference(to_aim, to_fix) <= kWidestAngle) return to_aim;
    return FoldBearing(TurnSide(to_fix, to_aim) == kTurnLeft ? to_fix - kClosingAngle
                                                             : to_fix + kClosingAngle);
}

LegPosition LocateOnLeg(double lat, double lon, double from_lat, double from_lon, double to_lat,
                        double to_lon) {
    LegPosition position;
    const DistBearing leg = GreatCircle(from_lat, from_lon, to_lat, to_lon);
    const DistBearing to_end = GreatCircle(lat, lon, to_lat, to_lon);
    position.leg_len = leg.dist;
    position.initial_course = leg.bearing;
    position.dist_to_end = to_end.dist;
    position.bearing_to_end = to_end.bearing;
    if (leg.dist == 0) {
        position.initial_course = position.course_here = to_end.bearing;
        position.abeam = {lat, lon};
        return position;
    }
    position.abeam = ProjectPoint(from_lat, from_lon, leg.bearing, leg.dist - to_end.dist);
    // On a long leg the course turns with the meridians, so it is taken where the aircraft is. Right at the
    // end the two points meet and no bearing is left: the course there is the way back to the start,
    // reversed.
    const DistBearing ahead = GreatCircle(position.abeam.lat, position.abeam.lon, to_lat, to_lon);
    constexpr double kTooNear = 0.01;
    position.course_here = ahead.dist > kTooNear
                               ? ahead.bearing
                               : FoldBearing(GreatCircle(to_lat, to_lon, from_lat, from_lon).bearing + 180);
    const DistBearing across = GreatCircle(position.abeam.lat, position.abeam.lon, lat, lon);
    position.cross_track = std::min(across.dist, kMaxCrossTrack);
    position.cross_track_side = TurnSide(position.course_here, across.bearing);
    return position;
}

bool TargetFixPassed(double lat, double lon, double heading, double course, double fix_lat, double fix_lon) {
    if (BearingDifference(heading, course) > 90) return false;
    const double to_fix = GreatCircle(lat, lon, fix_lat, fix_lon).bearing;
    if (BearingDifference(to_fix, course) <= 90) return false;
    constexpr double kSideDistance = 22;
    for (const double across : {-90.0, 90.0}) {
        const LatLon side = ProjectPoint(fix_lat, fix_lon, FoldBearing(course + across), kSideDistance);
        const double to_side = GreatCircle(lat, lon, side.lat, side.lon).bearing;
        if (BearingDifference(to_side, course) > 90 && TurnSide(course, to_side) != TurnSide(course, to_fix))
            return true;
    }
    return false;
}
