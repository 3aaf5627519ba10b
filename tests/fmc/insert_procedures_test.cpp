#include <gtest/gtest.h>

#include <string>

#include "fmc/demo_navdata.h"
#include "fmc/endpoints.h"
#include "fmc/route_invariants.h"
#include "fmc/select_procedures.h"
#include "state/cfg.h"
#include "state/plan.h"
#include "state/procedure_lists.h"

namespace {

class InsertProcedures : public testing::Test {
  protected:
    InsertProcedures() {
        PutRouteNavdata(host);
        plan = {};
        procedure_lists = {};
    }
    void Enter(const std::string& sids, const std::string& apps) const {
        host.PutFile("Velarion/TZ900/Navdata/sids.txt", "[ORIG]\n" + sids);
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
    EXPECT_EQ(plan.procedures.arr_appr, "VOR");
    EXPECT_EQ(Idents(plan.FlightPlanMod, plan.mod_cnt), "ORIG EEE EASTX DEST");
    EXPECT_EQ(plan.FlightPlanMod[2].via, "VOR");
}

TEST_F(InsertProcedures, MissedApproachAltitudesAndHold) {
    const std::string apps =
        "09 ILS DDFIX FAF 3000 43.0 10.0 - 0 0\n09 ILS RW09 MAP 1250 45.0 9.98 - 0 0\n"
        "09 ILS EASTX MAF 0300005000B 42.0 12.0 - 0 0\n09 ILS LONER MAF 0 41.0 9.0 - 0 0\n"
        "09 ILS WWFIX MAF 4000 42.0 8.0 - 0 0\n09 ILS --- MAF 0 42.0 8.0 - 0 0\n";
    Enter("", apps);
    SelectApproach(1, 1);
    ASSERT_EQ(Idents(plan.FlightPlanMod, plan.mod_cnt), "ORIG DDFIX RW09 EASTX LONER WWFIX WWFIX DEST");
    EXPECT_EQ(plan.FlightPlanMod[3].block_above, 3000);
    EXPECT_EQ(plan.FlightPlanMod[3].block_below, 5000);
    EXPECT_EQ(plan.FlightPlanMod[4].alt_restr, 3500);  // halfway from the window's lower bound to 4000
    EXPECT_EQ(plan.FlightPlanMod[4].restr_code, 3);
    EXPECT_EQ(plan.FlightPlanMod[6].via, "HOLD");
    EXPECT_EQ(plan.FlightPlanMod[6].alt_restr, 4000);
    EXPECT_EQ(plan.FlightPlanMod[6].hold_pos, 1);
    SelectApproach(1, 1);
    EXPECT_EQ(Idents(plan.FlightPlanMod, plan.mod_cnt), "ORIG DEST");
    EXPECT_EQ(plan.hold_cnt, 0);
    cfg.IncludeMissedApproach = 0;
    SelectApproach(1, 1);
    EXPECT_EQ(Idents(plan.FlightPlanMod, plan.mod_cnt), "ORIG DDFIX RW09 DEST");
    EXPECT_EQ(plan.hold_cnt, 0);
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
    EXPECT_EQ(plan.mod_cnt, 81);
    EXPECT_EQ(plan.FlightPlanMod[80].ident, "F179");
    SelectApproach(1, 1);
    EXPECT_EQ(procedure_lists.approach_transition_cnt, 50);
}

}  // namespace
