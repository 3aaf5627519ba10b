#include "navdata/geodesy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "navdata/magnetic_model.h"

// Worked examples of E. Williams, Aviation Formulary: Los Angeles to New York, and the crossing of a radial
// of Reno and one of Boise.
TEST(Geodesy, WorkedExamples) {
    const auto [dist, bearing] =
        GreatCircle(33 + 57 / 60.0, -(118 + 24 / 60.0), 40 + 38 / 60.0, -(73 + 47 / 60.0));
    EXPECT_NEAR(dist, 2144, 0.5);
    EXPECT_NEAR(bearing, 66, 0.2);
    const LatLon on_the_way = ProjectPoint(33 + 57 / 60.0, -(118 + 24 / 60.0), 65.892167, 100);
    EXPECT_NEAR(on_the_way.lat, 34 + 37 / 60.0, 0.01);
    EXPECT_NEAR(on_the_way.lon, -(116 + 33 / 60.0), 0.01);
    double lat = 0, lon = 0;
    EXPECT_EQ(IntersectBearings(42.600, -117.866, 51, 44.840, -117.806, 137, lat, lon), 0);
    EXPECT_NEAR(lat, 43.572, 0.001);
    EXPECT_NEAR(lon, -116.189, 0.001);
}

TEST(Geodesy, EdgesOfTheSphere) {
    const auto same = GreatCircle(47.5, -122.3, 47.5, -122.3);
    EXPECT_EQ(same.dist, 0);
    EXPECT_EQ(same.bearing, 0);
    const double half_circle = 180 * 60;
    EXPECT_NEAR(GreatCircle(0, 0, 0, 180).dist, half_circle, 1e-6);
    EXPECT_NEAR(GreatCircle(60, 179, 60, -179).bearing, 89.134, 0.001);  // atan2 form, by hand
    EXPECT_NEAR(GreatCircle(10, 20, 11, 20).dist, 60, 1e-6);
    EXPECT_EQ(GreatCircle(11, 20, 10, 20).bearing, 180);

    const LatLon by_360 = ProjectPoint(47, 8, 360, 60), by_0 = ProjectPoint(47, 8, 0, 60);
    EXPECT_EQ(by_360.lat, by_0.lat);
    EXPECT_EQ(by_360.lon, by_0.lon);
    EXPECT_NEAR(by_0.lat, 48, 1e-9);
    const LatLon east = ProjectPoint(0, 179.5, 90, 60);
    EXPECT_NEAR(east.lon, -179.5, 1e-9);
    const LatLon pole = ProjectPoint(89, 33, 0, 60);
    EXPECT_NEAR(pole.lat, 90, 1e-5);
    EXPECT_EQ(pole.lon, 33);
    EXPECT_EQ(ProjectPoint(90, 33, 10, 60).lon, 33);

    double lat = 1, lon = 2;
    EXPECT_EQ(IntersectBearings(45, 10, 0, 45, 11, 180, lat, lon), -99);
    EXPECT_EQ(IntersectBearings(45, 10, 90, 45, 10, 180, lat, lon), -99) << "from one point";
    EXPECT_EQ(IntersectBearings(0, 10, 90, 0, 20, 90, lat, lon), -99) << "along one circle";
    EXPECT_EQ(lat, 1);
    EXPECT_EQ(lon, 2);
}

// Out and back over every bearing and distance must meet: the two formulas check one another.
TEST(Geodesy, ProjectedPointsAreWhereTheGreatCircleSays) {
    for (double lat = -80; lat <= 80; lat += 20)
        for (double bearing = 0; bearing < 360; bearing += 30)
            for (const double dist : {1.0, 50.0, 3000.0}) {
                const LatLon there = ProjectPoint(lat, 175, bearing, dist);
                const auto back = GreatCircle(lat, 175, there.lat, there.lon);
                EXPECT_NEAR(back.dist, dist, 1e-3);
                EXPECT_NEAR(std::remainder(back.bearing - bearing, 360), 0, 1e-3);
            }
}

TEST(Geodesy, WindParts) {
    struct Case {
        double heading, dir, spd;
        int crosswind, headwind;
    };
    // 20 kt from 30 degrees off the nose: 20 sin 30 = 9.99 in doubles and cut, 20 cos 30 = 17.3.
    const Case cases[] = {
        {90, 90, 20, 0, -20}, {90, 270, 20, 0, 20},  {90, 120, 20, 9, -17},  {90, 60, 20, -9, -17},
        {90, 180, 20, 20, 0}, {90, 0, 20, -20, 0},   {350, 10, 30, 10, -28}, {10, 350, 30, -10, -28},
        {0, 135, 40, 28, 28}, {0, 225, 40, -28, 28}, {360, 0, 15, 0, -15},
    };
    for (const Case& c : cases) {
        const WindParts wind = WindComponents(c.heading, c.dir, c.spd);
        EXPECT_EQ(wind.crosswind, c.crosswind) << c.heading << " " << c.dir;
        EXPECT_EQ(wind.headwind, c.headwind) << c.heading << " " << c.dir;
    }
}

TEST(Geodesy, PositionTexts) {
    EXPECT_EQ(FormatLatitude(47.4358), "N47:26:08");
    EXPECT_EQ(FormatLatitude(-5.0), "S05:00:00");
    EXPECT_EQ(FormatLongitude(-8.525), "E08:31:30");
    EXPECT_EQ(FormatLongitude(122.5), "W122:30:00");

    const LatLon compact = ParseLatLonCompact("N4726.1", "W12218.5");
    EXPECT_NEAR(compact.lat, 47 + 26.1 / 60, 1e-9);
    EXPECT_NEAR(compact.lon, 122 + 18.5 / 60, 1e-9) << "the caller applies the sign";
    const LatLon colons = ParseLatLonColons("S5:7:30", "W122:30:0");
    EXPECT_NEAR(colons.lat, -5.125, 1e-9);
    EXPECT_NEAR(colons.lon, -122.5, 1e-9);
    EXPECT_EQ(ParseLatLonCompact("", "W").lat, 0);
    EXPECT_EQ(ParseLatLonColons("N", ":::::").lon, 0);
}

// Declinations of an independent evaluation of the published coefficients: the potential by the closed sum of
// the Legendre functions, its gradient by differences. In the comment before the cut.
TEST(MagneticModel, WholeDegreesAtTheEpoch) {
    struct Case {
        double lat, lon;
        int magvar;
    };
    const Case cases[] = {
        {80, 0, -7},     // -7.955
        {0, 120, 2},     // 1.154
        {-80, 240, 71},  // 70.578
        {47, -122, 18},  // 17.586
        {51, 0, -2},     // -2.300
        {-33, 151, 13},  // 12.242
        {64, -22, -17},  // -17.398
        {35, 139, -6},   // -6.788
        {50, 8, 0},      // 0.481, not above 0.54
        {89, 45, 27},    // 26.280
        {90, 0, -19},    // -19.936, the limit along the meridian
    };
    for (const Case& c : cases) EXPECT_EQ(MagVarAt(c.lat, c.lon), c.magvar) << c.lat << " " << c.lon;
    EXPECT_EQ(MagVarAt(47.9, -122.9), MagVarAt(47, -122));
    EXPECT_EQ(MagVarAt(std::numeric_limits<double>::quiet_NaN(), 0), 0);
}
