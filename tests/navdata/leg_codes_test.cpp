#include "navdata/leg_codes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// On the equator and with little distance the sphere is flat: a degree is 60 nm both ways.
constexpr double kNmPerDegree = 60.0;

double EastNm(const LatLon& point) {
    return point.lon * kNmPerDegree;
}
double NorthNm(const LatLon& point) {
    return point.lat * kNmPerDegree;
}

LegCode Code(std::string_view text) {
    LegCode code;
    EXPECT_TRUE(ParseLegCode(text, code)) << text;
    return code;
}

TEST(LegCodes, AreParsedAndNamed) {
    struct Row {
        const char* text;
        int turn, course;
        LegCode::Until until;
        double limit;
        const char* ident;
    };
    constexpr Row kRows[] = {
        {"/T152/UA", 0, 152, LegCode::kAltitude, 0, "(1200)"},
        {"/RT/H300/IC270", 2, 300, LegCode::kIntercept, 270, "(INTC)"},
        {"/H045/IC075", 0, 45, LegCode::kIntercept, 75, "(INTC)"},
        {"/H190/UD2.3", 0, 190, LegCode::kDistance, 2.3, "HD190"},
        {"/T275/UD9.0", 0, 275, LegCode::kDistance, 9.0, "TR275"},
        {"/LT/C123", 1, 123, LegCode::kNothing, 0, "CR123"},
        {"/H010/VT", 0, 10, LegCode::kVectors, 0, "VECTORS"},
    };
    for (const Row& row : kRows) {
        const LegCode code = Code(row.text);
        EXPECT_EQ(code.turn, row.turn) << row.text;
        EXPECT_EQ(code.course, row.course) << row.text;
        EXPECT_EQ(code.until, row.until) << row.text;
        EXPECT_DOUBLE_EQ(code.limit, row.limit) << row.text;
        EXPECT_EQ(LegCodeIdent(code, "1200+"), row.ident);
    }
    LegCode code;
    for (const char* text : {"", "/", "/RT", "/X100", "/H1", "/H12A/UA", "BTG", "/RT/", "/H190/", "/H190/XX3",
                             "/H045/IC", "/H190/UD"})
        EXPECT_FALSE(ParseLegCode(text, code)) << text;
}

TEST(LegCodes, ClimbUntilAnAltitude) {
    LatLon end;
    // 1200 ft at 1200 ft a minute is 3.1666 nm, and 0.33 to begin with
    LegCodeInput input{.start = {0, 0}, .entry_course = 90, .reference = {}, .altitude = 1200};
    ASSERT_EQ(ComputeDepartureLeg(Code("/T090/UA"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 3.4966, 1e-3);
    EXPECT_NEAR(NorthNm(end), 0, 1e-6);
    // a variation of 10 degrees east turns the magnetic course
    input = {.start = {0, 0}, .entry_course = 80, .reference = {}, .altitude = 1200, .variation = 10};
    ASSERT_EQ(ComputeDepartureLeg(Code("/T080/UA"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 3.4966, 1e-3);
    // the missed approach climbs at 1500 ft a minute and begins at once: 3000 ft are 6.3332 nm
    input = {.start = {0, 0}, .entry_course = 90, .reference = {}, .altitude = 4000, .elevation = 1000};
    ASSERT_EQ(ComputeApproachLeg(Code("/T090/UA"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 6.3332, 1e-3);
}

TEST(LegCodes, TurnWithinTheClimb) {
    LatLon end;
    // Right from 360 to 090: a chord of sqrt(2) * 90/72 = 1.7678 nm on 045, then the rest of 3.4966 nm east.
    LegCodeInput input{.start = {0, 0}, .entry_course = 0, .reference = {}, .altitude = 1200};
    ASSERT_EQ(ComputeDepartureLeg(Code("/RT/H090/UA"), input, end), 0);
    EXPECT_NEAR(NorthNm(end), 1.25, 2e-3);
    EXPECT_NEAR(EastNm(end), 1.25 + 3.4966 - 1.7678, 2e-3);
    // Left from 360 to 270 is its mirror.
    input = {.start = {0, 0}, .entry_course = 0, .reference = {}, .altitude = 1200};
    ASSERT_EQ(ComputeDepartureLeg(Code("/LT/H270/UA"), input, end), 0);
    EXPECT_NEAR(EastNm(end), -(1.25 + 3.4966 - 1.7678), 2e-3);
    // A climb that is over before the turn is: the chord of 300 degrees is 1.1785 nm, 400 ft take 1.3855.
    input = {.start = {0, 0}, .entry_course = 0, .reference = {}, .altitude = 400};
    end = {7, 7};
    EXPECT_EQ(ComputeDepartureLeg(Code("/RT/H300/UA"), input, end), 0);
    input = {.start = {0, 0}, .entry_course = 0, .reference = {}, .altitude = 390};
    end = {7, 7};
    EXPECT_EQ(ComputeDepartureLeg(Code("/RT/H300/UA"), input, end), kLegFails);
    EXPECT_EQ(end.lat, 7);
}

TEST(LegCodes, UntilADistance) {
    LatLon end;
    // Away from a station 2 nm behind: at 9 nm from it, 7 nm are flown; the walk goes in tenths.
    LegCodeInput input{.start = {0, 0}, .entry_course = 90, .reference = {0, -2 / kNmPerDegree}};
    ASSERT_EQ(ComputeDepartureLeg(Code("/T090/UD9.0"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 7, 0.11);
    // A line that never comes so near ends where it began.
    input.reference = {30 / kNmPerDegree, 0};
    ASSERT_EQ(ComputeDepartureLeg(Code("/H190/UD2.3"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 0, 1e-9);
    EXPECT_NEAR(NorthNm(end), 0, 1e-9);
}

TEST(LegCodes, UntilAnIntercept) {
    LatLon end;
    // North from the origin onto the course 090 to a fix at 10 nm north, 20 east.
    LegCodeInput input{
        .start = {0, 0}, .entry_course = 0, .reference = {10 / kNmPerDegree, 20 / kNmPerDegree}};
    ASSERT_EQ(ComputeDepartureLeg(Code("/H000/IC090"), input, end), 0);
    EXPECT_NEAR(NorthNm(end), 10, 0.01);
    EXPECT_NEAR(EastNm(end), 0, 0.01);
    // The course lies behind: no crossing ahead.
    input = {.start = {0, 0}, .entry_course = 180, .reference = {10 / kNmPerDegree, 20 / kNmPerDegree}};
    end = {7, 7};
    EXPECT_EQ(ComputeDepartureLeg(Code("/H180/IC090"), input, end), kLegFails);
    EXPECT_EQ(end.lat, 7);
    // A turn right to 090 at 250 kt ends 1.8757 nm north and east of where it began; that to the course of 90
    // degrees, 1.75 nm along it. Behind a procedure turn only the second is left.
    struct Row {
        int (*compute)(const LegCode&, LegCodeInput&, LatLon&);
        const char* role;
        double north;
    };
    constexpr Row kRows[] = {{ComputeDepartureLeg, "", 1.8757 - 1.75},
                             {ComputeApproachLeg, "MAF", 1.8757 - 1.75},
                             {ComputeApproachLeg, "---", -1.75}};
    for (const Row& row : kRows) {
        input = {.start = {0, 0}, .entry_course = 0, .reference = {-20 / kNmPerDegree, 30 / kNmPerDegree}};
        input.role = row.role;
        ASSERT_EQ(row.compute(Code("/RT/H090/IC180"), input, end), 0);
        EXPECT_NEAR(NorthNm(end), row.north, 0.01) << row.role;
        EXPECT_NEAR(EastNm(end), 30, 0.01) << row.role;
    }
    // Already along the course: reached at once.
    input = {.start = {0, 0}, .entry_course = 90, .reference = {0, 20 / kNmPerDegree}};
    ASSERT_EQ(ComputeDepartureLeg(Code("/H091/IC090"), input, end), 0);
    EXPECT_NEAR(EastNm(end), 0, 1e-9);
}

}  // namespace
