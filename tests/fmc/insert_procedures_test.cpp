#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fmc/demo_navdata.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/endpoints.h"
#include "fmc/route/execute_route.h"
#include "fmc/route_invariants.h"
#include "navdata/geodesy.h"
#include "state/cfg.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/sim.h"

namespace {

class InsertProcedures : public testing::Test {
  protected:
    InsertProcedures() {
        PutRouteNavdata(host);
        plan = {};
        procedure_lists = {};
    }
    void Enter(const std::string& sids, const std::string& apps, const std::string& stars = "") const {
        host.PutFile("Velarion/TZ900/Navdata/sids.txt", "[ORIG]\n" + sids);
        host.PutFile("Velarion/TZ900/Navdata/stars.txt", "[DEST]\n" + stars);
        host.PutFile("Velarion/TZ900/Navdata/apps.txt", "[DEST]\n" + apps);
        ASSERT_EQ(EnterOrigin("ORIG"), 1);
        ASSERT_EQ(EnterDestination("DEST"), 1);
    }

    FakeHost host;
};

TEST_F(InsertProcedures, ACirclingApproachTakesNoLegsOfARunway) {
    Enter("",
          "09 VOR DDFIX FAF 3000 43.0 10.0 - 0 0\n09 VOR RW09 MAP 1250 45.0 9.98 - 0 0\n"
          "-- VOR EEE FAF 3000 44.0 10.0 - 0 0\n-- VOR EASTX MAP 1800 42.0 12.0 - 0 0\n");
    SelectApproach(1, 2);
    EXPECT_EQ(plan.mod.procedures.arr_appr, "VOR");
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DISCO EEE EASTX DEST");
    EXPECT_EQ(plan.mod.legs[3].via, "VOR");
}

TEST_F(InsertProcedures, MissedApproachAltitudesAndHold) {
    const std::string apps =
        "09 ILS DDFIX FAF 3000 43.0 10.0 - 0 0\n09 ILS RW09 MAP 1250 45.0 9.98 - 0 0\n"
        "09 ILS EASTX MAF 0300005000B 42.0 12.0 - 0 0\n09 ILS LONER MAF 0 41.0 9.0 - 0 0\n"
        "09 ILS WWFIX MAF 4000 42.0 8.0 - 0 0\n09 ILS --- MAF 0 42.0 8.0 - 0 0\n";
    Enter("", apps);
    SelectApproach(1, 1);
    ASSERT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DISCO DDFIX RW09 EASTX LONER WWFIX WWFIX DEST");
    EXPECT_EQ(plan.mod.legs[4].block_above, 3000);
    EXPECT_EQ(plan.mod.legs[4].block_below, 5000);
    EXPECT_EQ(plan.mod.legs[5].alt_restr, 3500);  // halfway from the window's lower bound to 4000
    EXPECT_EQ(plan.mod.legs[5].restr_code, 3);
    EXPECT_EQ(plan.mod.legs[7].via, "HOLD");
    EXPECT_EQ(plan.mod.legs[7].alt_restr, 4000);
    EXPECT_EQ(plan.mod.legs[7].hold_pos, 1);
    SelectApproach(1, 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DEST");
    EXPECT_EQ(plan.hold_cnt, 0);
    cfg.IncludeMissedApproach = 0;
    SelectApproach(1, 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DISCO DDFIX RW09 DEST");
    EXPECT_EQ(plan.hold_cnt, 0);
}

TEST_F(InsertProcedures, AltitudeTokens) {
    struct Row {
        const char* token;
        double sid, star, approach;  // ft; -999 = none
        int type, approach_type;
    };
    constexpr Row kRows[] = {
        {"0", -999, -999, -999, 0, 0},           {"99", -999, -999, 99, 0, 0},
        {"999", -999, 999, 999, 0, 0},           {"1000", 1000, 1000, 1000, 0, 0},
        {"1050", -999, 1050, 1050, 0, 0},        {"900+", -999, 900, 900, 0, 1},
        {"9000+", 9000, 9000, 9000, 1, 1},       {"08000-", 8000, 8000, 8000, 2, 2},
        {"-9000", -999, -999, -999, 0, 0},       {"FL240", -999, -999, -999, 0, 0},
        {"1400018000A", -999, -999, -999, 0, 0},
    };
    for (const Row& row : kRows) {
        const std::string token = row.token;
        plan = {};
        Enter("ONE1 AAFIX " + token + " --- 40.5 10.0\n", "09 ILS DDFIX --- " + token + " 43.0 10.0 - 0 0\n",
              "TWO2 --- CCC " + token + " 42.0 10.0\n");
        SelectSid(1, 1, false);
        SelectArrival(1, 1, false);
        SelectApproach(1, 1);
        ASSERT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX CCC DISCO DDFIX DEST");
        const FlightPlanLeg &sid = plan.mod.legs[1], &star = plan.mod.legs[2], &approach = plan.mod.legs[4];
        EXPECT_EQ(sid.alt_restr, row.sid) << token;
        EXPECT_EQ(sid.restr_code, row.sid > 0 ? 1 : 0) << token;
        EXPECT_EQ(sid.restr_type, row.sid > 0 ? row.type : 0) << token;
        EXPECT_EQ(star.alt_restr, row.star) << token;
        EXPECT_EQ(star.restr_type, row.type) << token;
        EXPECT_EQ(approach.alt_restr, row.approach) << token;
        EXPECT_EQ(approach.restr_code, row.approach > 0 ? 3 : 2) << token;
        EXPECT_EQ(approach.restr_type, row.approach_type) << token;
    }
}

// A heading with one runway decides, whatever the legs name; without one the legs do.
TEST_F(InsertProcedures, ASidOfOneRunwaySelectsItAndListsOnlyIt) {
    const struct {
        const char* heading;
        std::vector<std::string> runways;
        const char* selected;
    } kCases[] = {
        {"T ONE1 RNAV 16\n", {"16"}, "16"},
        {"T ONE1 RNAV 16,34\n", {"16", "34"}, kNotSelected},
        {"T ONE1 RNAV ALL\n", {"34", "16"}, kNotSelected},
        {"", {"34", "16"}, kNotSelected},
    };
    for (const auto& test : kCases) {
        plan = {};
        Enter(std::string(test.heading) + "ONE1 AAFIX 0 34 40.5 10.0\nONE1 BBFIX 0 16 41.5 10.0\n", "");
        SelectSid(1, 1, false);
        EXPECT_EQ(DepartureRunways(), test.runways) << test.heading;
        EXPECT_EQ(plan.mod.ends.dep_runway, test.selected) << test.heading;
    }
}

// Nothing but the two ends: arrival and approach join as in any route, and the departure is flown first.
TEST_F(InsertProcedures, IntoAnEmptyRoute) {
    Enter("ONE1 AAFIX 0 --- 40.5 10.0\n",
          "09 ILS DDFIX IAF 3000 43.0 10.0 - 0 0\n09 ILS RW09 MAP 1250 45.0 9.98 - 0 0\n",
          "TWO2 --- CCC 0 42.0 10.0\nTWO2 09 DDFIX 0 43.0 10.0\n");
    SelectApproach(1, 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DISCO DDFIX RW09 DEST");
    AdvanceRouteState();
    ExecuteRoute();
    EXPECT_EQ(plan.active.stpos, 2);
    sim.on_ground = 1;
    SelectArrival(1, 1, false);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG CCC DDFIX RW09 DEST");
    EXPECT_EQ(plan.mod.stpos, 1);
    SelectSid(1, 1, false);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX CCC DDFIX RW09 DEST");
    EXPECT_EQ(plan.mod.active_leg.to, "AAFIX");
    SelectSid(1, 1, false);
    SelectArrival(1, 1, false);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG DISCO DDFIX RW09 DEST");
    EXPECT_EQ(plan.mod.stpos, 2);
    EXPECT_EQ(plan.mod.active_leg.to, "DDFIX");
    EXPECT_EQ(plan.mod.active_leg.from, "ORIG");
}

TEST_F(InsertProcedures, ASharedFixGoesBackToTheArrival) {
    Enter("ONE1 AAFIX 12000+ --- 40.5 10.0 FO\n", "",
          "TWO2 --- AAFIX 9000- 40.5 10.0\nTWO2 --- CCC 0 42.0 10.0\n");
    for (bool arrival_first : {true, false}) {
        if (arrival_first) SelectArrival(1, 1, false);
        SelectSid(1, 1, false);
        if (!arrival_first) SelectArrival(1, 1, false);
        ASSERT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX CCC DEST");
        EXPECT_EQ(plan.mod.legs[1].via_type, "SIDSTAR");
        EXPECT_EQ(plan.mod.legs[1].alt_restr, 12000);
        SelectSid(1, 1, false);
        ASSERT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX CCC DEST");
        EXPECT_EQ(plan.mod.legs[1].via_type, "STAR");
        EXPECT_EQ(plan.mod.legs[1].alt_restr, 9000);
        EXPECT_EQ(plan.mod.legs[1].flyover, 0);
        SelectArrival(1, 1, false);
    }
}

// A transition may have legs of its own for each runway.
TEST_F(InsertProcedures, TransitionsByRunway) {
    Enter(
        "T ONE1 RNAV 16,34\nONE1 AAFIX 0 --- 40.5 10.0\nONE1.OUT BBFIX 0 16 41.5 10.0\n"
        "ONE1.OUT EASTX 0 34 42.0 12.0\nONE1.OUT CCC 0 OUT 42.0 10.0\n",
        "");
    SelectSid(1, 1, false);
    SelectDepartureRunway(1, 2);
    SelectDepartureTransition(1, 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX EASTX CCC DEST");
    SelectDepartureRunway(1, 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAFIX BBFIX CCC DEST");
}

// A coded leg for all runways goes on from what the chosen one's legs lead to: 1200 ft up are 3.4966 nm.
TEST_F(InsertProcedures, CodedLegsFollowTheirRunway) {
    Enter(
        "T ONE1 RNAV 16,34\nONE1 RW16 0 16 39.02 9.99\nONE1 RW34 0 34 38.98 10.01\n"
        "ONE1 /T160/UA 1630 --- 0 0\n",
        "");
    SelectSid(1, 1, false);
    for (int runway : {1, 2}) {
        SelectDepartureRunway(1, runway);
        ASSERT_EQ(plan.mod.leg_cnt, 3);
        const FlightPlanLeg &threshold = plan.mod.legs[1], &end = plan.mod.legs[2];
        EXPECT_EQ(threshold.ident, runway == 1 ? "RW16" : "RW34");
        EXPECT_NEAR(GreatCircle(threshold.lat, threshold.lon, end.lat, end.lon).dist, 3.4966, 1e-3);
    }
}

TEST_F(InsertProcedures, ListsEndWhereTheyMay) {
    std::string sid = "T LONG1 RNAV 16\n", apps;
    for (int i = 0; i < 100; ++i)
        sid += "LONG1 F" + std::to_string(100 + i) + " 0 --- " + std::to_string(40.0 + i * 0.01) + " 10.0\n";
    for (int i = 0; i < 60; ++i)
        apps += "09 ILS F" + std::to_string(i) + " T" + std::to_string(i) + " 5000 43.0 10.0 IAF 0 0\n";
    Enter(sid, apps + "09 ILS RW09 MAP 1250 45.0 9.98 - 0 0\n");
    SelectSid(1, 1, false);
    EXPECT_EQ(procedure_lists.departure_leg_cnt, 80);
    EXPECT_EQ(plan.mod.leg_cnt, 81);
    EXPECT_EQ(plan.mod.legs[80].ident, "F179");
    SelectApproach(1, 1);
    EXPECT_EQ(procedure_lists.approach_transition_cnt, 50);
}

}  // namespace
