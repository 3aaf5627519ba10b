#include "fmc/route/route_text.h"

#include <gtest/gtest.h>

#include "fmc/demo_navdata.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

class RouteText : public testing::Test {
  protected:
    RouteText() { PutRouteNavdata(host); }

    // The idents of the working copy with their vias: "ORIG AAA AAFIX/Q1 DEST".
    static std::string Legs() {
        std::string text;
        for (int i = 0; i <= plan.mod.leg_cnt; ++i) {
            const FlightPlanLeg& leg = plan.mod.legs[i];
            if (i > 0) text += ' ';
            text += leg.ident;
            if (!leg.via.empty() && leg.via != "DIRECT") text += "/" + leg.via;
        }
        return text;
    }
    static std::string Enter(std::string_view route) {
        std::string error;
        return EnterRouteText(route, error) == 1 ? Legs() : error;
    }

    FakeHost host;
};

TEST_F(RouteText, BuildsTheLegsThatAPilotWouldGet) {
    const struct {
        const char *route, *legs;
    } kCases[] = {
        {"ORIG DEST", "ORIG DEST"},
        {"orig dct loner dest", "ORIG LONER DEST"},
        {"ORIG AAA Q1 CCC DEST", "ORIG AAA AAFIX/Q1 BBFIX/Q1 CCC/Q1 DEST"},
        {"ORIG EEE Q1 BBFIX DCT LONER DEST", "ORIG EEE DDFIX/Q1 CCC/Q1 BBFIX/Q1 LONER DEST"},
        {"ORIG AAA Q1 CCC Q2 EASTX DEST", "ORIG AAA AAFIX/Q1 BBFIX/Q1 CCC/Q1 EASTX/Q2 DEST"},
        {"ORIG AAA Q1 Q2 EASTX DEST", "ORIG AAA AAFIX/Q1 BBFIX/Q1 CCC/Q1 EASTX/Q2 DEST"},
        {"ORIG/16 AAFIX DEST/27", "ORIG AAFIX DEST"},
        {"ORIG N0480F350 AAA/N0450F310 DEST", "ORIG AAA DEST"},
        {"ORIG 45N120W N42W010 4210N01010W DEST", "ORIG 45N120W N42W010 N42W010 DEST"},
        {"ORIG CCC090/25 CCC090025 CCC180/10 DEST", "ORIG CCC01 CCC02 CCC03 DEST"},
        {"ORIG DCT Q9 DCT AAA DEST", "ORIG Q9 AAA DEST"},
    };
    for (const auto& test : kCases) EXPECT_EQ(Enter(test.route), test.legs) << test.route;
}

TEST_F(RouteText, TellsWhichWordIsWrongAndLosesNothing) {
    ASSERT_EQ(Enter("ORIG/34 AAA Q1 BBFIX DEST"), "ORIG AAA AAFIX/Q1 BBFIX/Q1 DEST");
    const struct {
        const char *route, *error;
    } kCases[] = {
        {"", "a route needs an origin and a destination"},
        {"ORIG", "a route needs an origin and a destination"},
        {"NONE DEST", "word 1 \"NONE\": no such airport"},
        {"ORIG AAA NONE", "word 3 \"NONE\": no such airport"},
        {"ORIG/05 DEST", "word 1 \"ORIG/05\": the airport has no such runway"},
        {"ORIG DEST/05", "word 2 \"DEST/05\": the airport has no such runway"},
        {"ORIG XSID AAA DEST", "word 2 \"XSID\": no such fix, airway or departure"},
        {"ORIG AAA NOFIX LONER DEST", "word 3 \"NOFIX\": no such fix or airway"},
        {"ORIG AAA XSTAR DEST", "word 3 \"XSTAR\": no such fix, airway or arrival"},
        {"ORIG LONER Q1 CCC DEST", "word 3 \"Q1\": the airway doesn't hold LONER"},
        {"ORIG N0480F350 AAA Q1 LONER DEST", "word 5 \"LONER\": the fix isn't on airway Q1"},
        {"ORIG AAA Q1 NOFIX DEST", "word 4 \"NOFIX\": no such fix or airway"},
        {"ORIG AAA Q1 Q3 SOLOX DEST", "word 4 \"Q3\": the airway doesn't cross Q1"},
        {"ORIG AAA Q1 AAA DEST", "word 4 \"AAA\": the airway is joined at the same fix"},
        {"ORIG AAA Q1 DEST", "word 3 \"Q1\": the airway needs a fix where it is left"},
        {"ORIG Q1 CCC DEST", "word 2 \"Q1\": the airway needs a fix where it is joined"},
        {"ORIG AAA DCT Q1 CCC DEST", "word 4 \"Q1\": the airway needs a fix where it is joined"},
        {"ORIG AAA Q1 Q1 CCC DEST", "word 4 \"Q1\": the airway doesn't cross Q1"},
    };
    for (const auto& test : kCases) {
        EXPECT_EQ(Enter(test.route), test.error) << test.route;
        EXPECT_EQ(Legs(), "ORIG AAA AAFIX/Q1 BBFIX/Q1 DEST") << test.route;
        EXPECT_EQ(plan.active.ends.dep_runway, "34") << test.route;
    }
}

TEST_F(RouteText, ChoosesTheFixThatTheRouteMeans) {
    // The aircraft stands in the south, where the namesakes are: the route counts, not the aircraft.
    sim.plane_lat = -41;
    sim.plane_lon = 9;
    ASSERT_EQ(Enter("ORIG AAA DUPLE DEST"), "ORIG AAA DUPLE DEST");
    EXPECT_EQ(plan.mod.legs[1].lat, 40);
    EXPECT_EQ(plan.mod.legs[2].lat, 43.5);
    EXPECT_EQ(plan.mod.legs[1].type, "VOR");
    EXPECT_EQ(plan.mod.legs[1].freq, "110.00");
    // An airway's own position of the fix wins over a nearer namesake.
    ASSERT_EQ(Enter("ORIG AAA Q1 DUPLE DEST"), "ORIG AAA DUPLE/Q1 DEST");
    EXPECT_EQ(plan.mod.legs[1].lat, -40);
    EXPECT_EQ(plan.mod.legs[2].lat, -43.5);
}

TEST_F(RouteText, TakesTypesRunwaysAndTheFirstLevel) {
    ASSERT_EQ(Enter("ORIG/RW16 AAA/N0480F350 Q1 EEE/M084F390 DEST/27"),
              "ORIG AAA AAFIX/Q1 BBFIX/Q1 CCC/Q1 DDFIX/Q1 EEE/Q1 DEST");
    EXPECT_EQ(plan.mod.legs[0].lat, 39.02);
    EXPECT_EQ(plan.mod.legs[0].alt, 430);
    EXPECT_EQ(plan.mod.legs[4].type, "VOR");
    EXPECT_EQ(plan.mod.legs[6].type, "NDB");
    EXPECT_EQ(plan.mod.legs[6].freq, "300.0");
    EXPECT_EQ(plan.mod.legs[6].via_type, "AWY");
    EXPECT_EQ(plan.mod.entries.cruise_alt, 35000);
    EXPECT_EQ(plan.fms_fpln_active, kRouteEntered);
    std::string error;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_EQ(plan.active.leg_cnt, 7);
    EXPECT_EQ(perf.cruise_alt, 35000);
    EXPECT_EQ(plan.active.legs[7].lon, 10.02);  // the threshold of 27
    EXPECT_EQ(plan.active.active_leg.from, "ORIG");
    EXPECT_EQ(plan.active.active_leg.to, "AAA");
}

TEST_F(RouteText, MetricLevelsAreRoundedToHundredsOfFeet) {
    Enter("ORIG K0900S1130 AAA DEST");
    EXPECT_EQ(plan.mod.entries.cruise_alt, 37100);  // 11,300 m are 37,073 ft
}

TEST_F(RouteText, SurvivesAnyBytes) {
    std::string error;
    for (const char* text :
         {"\xff\xfe ORIG", "/ /", "ORIG / DEST", "ORIG //// DEST/", "ORIG N0480F DEST", "ORIG / N/ DEST"})
        EXPECT_EQ(EnterRouteText(text, error) == 1 || !error.empty(), true);
    EXPECT_EQ(EnterRouteText(std::string(100000, 'A') + " " + std::string(1000, ' ') + "B", error), 0);
}

}  // namespace
