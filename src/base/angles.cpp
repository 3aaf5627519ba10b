#include "base/angles.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

double FoldBearing(double bearing) {
    if (bearing >= 0 && bearing < 360) return bearing;  // most are, and the remainder is slow
    if (bearing < 0 && bearing >= -360) return bearing == -360 ? 0 : bearing + 360;
    const double folded = std::fmod(bearing, 360);
    return folded < 0 ? folded + 360 : folded;
}

double FoldCourse(double course) {
    const double folded = FoldBearing(course);
    return folded < 0.5 ? folded + 360 : folded;
}

double BearingDifference(double a, double b) {
    const double difference = FoldBearing(a - b);
    return std::min(difference, 360 - difference);
}

int AngleBetween(double a, double b) {
    constexpr double kRoundingNoise = 1e-9;  // 90.3 - 80.3 is ten degrees
    return WholeNumber(BearingDifference(a, b) + kRoundingNoise);
}

int TurnSide(double from, double to) {
    const double clockwise = FoldBearing(to - from);
    if (clockwise == 180) return from < to ? kTurnLeft : kTurnRight;
    return clockwise > 0 && clockwise < 180 ? kTurnRight : kTurnLeft;
}
