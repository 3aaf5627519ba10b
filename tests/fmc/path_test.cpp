#include "fmc/legs/path.h"

#include <gtest/gtest.h>

#include "base/angles.h"
#include "state/sim.h"
#include "state/state_groups.h"

namespace {

// A circle at 30 degrees of bank and 200 kt: 40000 / (0.57735 * 11.26) = 6152.9 ft, and so on by hand.
TEST(Path, TurnRadiusFollowsTheSpeedLaw) {
    struct {
        double speed, radius;
    } const cases[] = {
        {200, 0.99239},    // 6152.95 ft * 0.98
        {219.9, 1.19970},  // the last of the slow law
        {300, 3.28087},    // 13844.1 * 1.6e-5 * 90000 - 2.22 + 1.83 = 19935.1 ft
        {400, 8.48139},    // 39040.6 ft * 1.32
        {480, 12.21320},
    };
    ResetSystemState();
    for (const auto& c : cases) {
        sim.ground_speed_kt = c.speed;
        EXPECT_NEAR(TurnRadiusForGroundSpeed(), c.radius, 2e-4) << c.speed;
        EXPECT_NEAR(TurnRadiusForSpeedAndAlt(c.speed - 20, 10000), c.radius, 2e-4) << c.speed;
    }
}

// By hand: tan(angle / 2) * radius * speed factor * angle factor + speed term.
TEST(Path, TurnAnticipation) {
    struct {
        double angle, radius, ground_speed, distance;
    } const cases[] = {
        {90, 2.0, 200, 2 * 1.0 * 2.05 * 0.92 + 0.2},
        {60, 3.0, 300, 3 * 0.577350 * 0.8 * 0.85 + 0.3},
        {10, 8.0, 450, 8 * 0.0874887 * 0.75 * 2.0 + 1.35},
        {20, 8.0, 380, 8 * 0.176327 * 0.7 * 1.8 + 380 * 0.0013},
        {170, 1.0, 200, 5.671282 * 2.05 * 0.95 + 0.2},  // as 160 degrees
        {160, 1.0, 200, 5.671282 * 2.05 * 0.95 + 0.2},
        {kTurnOfFlyOverFix, 9.0, 400, 0.5 + 400 * 0.0024},
        {kTurnOfFarFix, 9.0, 401, 401 * 0.003},
        {0, 5.0, 370, 0.37},
    };
    ResetSystemState();
    for (const auto& c : cases) {
        sim.ground_speed_kt = c.ground_speed;
        EXPECT_NEAR(WaypointChangeDistance(c.angle, c.radius), c.distance, 1e-5)
            << c.angle << " " << c.ground_speed;
    }
}

TEST(Path, BearingsFoldAndCompare) {
    EXPECT_DOUBLE_EQ(FoldBearing(-10), 350);
    EXPECT_DOUBLE_EQ(FoldBearing(720), 0);
    EXPECT_DOUBLE_EQ(FoldCourse(0.25), 360.25);
    EXPECT_DOUBLE_EQ(FoldCourse(0.5), 0.5);
    EXPECT_DOUBLE_EQ(FoldCourse(-0.25), 359.75);
    struct {
        double from, to;
        int between, side;
    } const cases[] = {
        {10, 350, 20, kTurnLeft},   {350, 10, 20, kTurnRight},    {360, 0.5, 0, kTurnRight},
        {90, 270, 180, kTurnLeft},  {270, 90, 180, kTurnRight},   {80.3, 90.3, 10, kTurnRight},
        {100, 80.1, 19, kTurnLeft}, {360.4, 100, 99, kTurnRight},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(AngleBetween(c.from, c.to), c.between) << c.from << " " << c.to;
        EXPECT_EQ(TurnSide(c.from, c.to), c.side) << c.from << " " << c.to;
    }
}

// On the equator a degree is 60 nm both ways, so positions against an eastward leg are plain geometry.
TEST(Path, PlaceOnALeg) {
    const LegPosition left = LocateOnLeg(0.05, 1, 0, 0, 0, 3);
    EXPECT_NEAR(left.leg_len, 180, 1e-6);
    EXPECT_NEAR(left.initial_course, 90, 1e-6);
    EXPECT_NEAR(left.dist_to_end, 120.04, 0.01);
    EXPECT_NEAR(left.cross_track, 3, 0.01);
    EXPECT_EQ(left.cross_track_side, kTurnLeft);
    const LegPosition right = LocateOnLeg(-0.05, 1, 0, 0, 0, 3);
    EXPECT_NEAR(right.cross_track, 3, 0.01);
    EXPECT_EQ(right.cross_track_side, kTurnRight);
    EXPECT_EQ(LocateOnLeg(5, 1, 0, 0, 0, 3).cross_track, kMaxCrossTrack);
    // along the 60th parallel over a quarter of the world: the course turns from 52 to 128 degrees or so, and
    // half way it is east
    const LegPosition arctic = LocateOnLeg(67.7923, 45, 60, 0, 60, 90);
    EXPECT_NEAR(arctic.course_here, 90, 0.1);
    EXPECT_LT(arctic.initial_course, 60);
    EXPECT_LT(arctic.cross_track, 0.01);
    // a leg of no length
    const LegPosition none = LocateOnLeg(1, 1, 1, 2, 1, 2);
    EXPECT_EQ(none.leg_len, 0);
    EXPECT_EQ(none.cross_track, 0);
    EXPECT_EQ(none.course_here, none.bearing_to_end);
}

TEST(Path, AFixIsPassedOnceItLiesBehindAnAircraftOnItsCourse) {
    struct {
        double lat, lon, heading;
        bool passed;
    } const cases[] = {
        {0, -0.01, 90, false},     // before it
        {0, 0.01, 90, true},       // past it, on track
        {0.1, 0.01, 90, true},     // past it, 6 nm left
        {-0.1, 0.01, 90, true},    // past it, 6 nm right
        {-0.1, -0.01, 90, false},  // abeam, not yet
        {0, 0.01, 185, false},     // past it, but flying away across the course
        {0, 0.01, 178, true},      // within 90 degrees of it
        {0.5, 0.01, 90, false},    // more than 22 nm beside it
    };
    for (const auto& c : cases)
        EXPECT_EQ(TargetFixPassed(c.lat, c.lon, c.heading, 90, 0, 0), c.passed) << c.lat << " " << c.lon;
}

}  // namespace
