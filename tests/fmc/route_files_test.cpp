#include "fmc/files/route_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "fmc/demo_navdata.h"
#include "fmc/files/plan_files.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "fmc/route/route_text.h"
#include "fmc/route_invariants.h"
#include "navdata/nav_tables.h"
#include "platform/files.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/route_files.h"
#include "state/sim.h"
#include "support/fake_host.h"
#include "support/file_text.h"
#include "support/paths.h"
#include "support/world_navdata.h"

namespace {

constexpr const char* kFolder = "Velarion/TZ900/flightplans/";

class RouteFiles : public testing::Test {
  protected:
    RouteFiles() {
        PutRouteNavdata(host);
        plan.active.legs[0] = {};
    }
    void Put(const std::string& name, const std::string& text) const { host.PutFile(kFolder + name, text); }
    int Load(const std::string& text) const {
        Put("X.RTE", text);
        const int loaded = LoadCompanyRoute("X.RTE");
        ExpectInvariants(text.substr(0, 200));
        return loaded;
    }
    static FlightPlanLeg& Leg(int index) { return plan.mod.legs[index]; }
    FakeHost host;
};

constexpr const char* kSimple =
    "[FlightPlan]\nORIG 39 10 APT\nAAA 40 10 VOR\nDDFIX 43 10 INT\nDEST 45 10 APT\n";

TEST_F(RouteFiles, TheListHasPlansInTheOrderOfTheFolder) {
    for (const char* name : {"b.rte", "Alpha.PLN", "TEMP.RTE", "readme.txt", "rte", "x.rte.bak"})
        Put(name, "");
    Put("folder.rte/inside.rte", "");
    ListRouteFiles();
    ASSERT_EQ(route_files.route_file_cnt, 2);
    EXPECT_EQ(route_files.RouteFiles[1], "Alpha.PLN");
    EXPECT_EQ(route_files.RouteFiles[2], "b.rte");
    EXPECT_EQ(FindRouteFile("AL"), 1);
    EXPECT_EQ(FindRouteFile("B.RTE"), 2);
    EXPECT_EQ(FindRouteFile("B.RTEX"), 0);
    host.PutFile("Plans/c.rte", "");
    cfg.FlightPlansFolder = "\\plans\\";
    ListRouteFiles();
    ASSERT_EQ(route_files.route_file_cnt, 1);
    EXPECT_EQ(route_files.RouteFiles[1], "c.rte");
    cfg.FlightPlansFolder = (host.root / "Plans").string();  // named in full
    ListRouteFiles();
    EXPECT_EQ(route_files.route_file_cnt, 1);
    cfg.FlightPlansFolder = "\\..\\elsewhere";
    ListRouteFiles();
    EXPECT_EQ(route_files.route_file_cnt, 0);
}

TEST_F(RouteFiles, AShortRowGivesTheFieldsThatItHas) {
    sim.on_ground = 1;
    flight_log.fplog_mode = 4;
    cfg.ClimbIas = 300;
    ASSERT_EQ(
        Load(std::string("CruiseAlt = 35000\r\nCostIndex=80\r\nFuel=9000\r\nTripFuel=1000\r\nResvFuel=500"
                         "\r\nWhat=7\r\n;note\r\n\r\n[FlightPlan]\r\n;ORIG 1 1\r\n   \r\n") +
             "ORIG 39 10 APT\r\nAAA 40 10\r\nUSERP 41.5 9 WPT\r\nDEST 45 10 APT\r\n"),
        1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAA USERP DEST");
    EXPECT_EQ(plan.mod.entries.cruise_alt, 35000);
    EXPECT_EQ(perf.cost_index, 80);
    EXPECT_EQ(perf.planned_fuel, 10500);
    EXPECT_EQ(perf.resv_fuel, 500);
    EXPECT_EQ(Leg(1).type, "VOR");  // of two namesakes the one that stands there
    EXPECT_EQ(Leg(1).freq, "110.00");
    EXPECT_EQ(Leg(1).alt, kNone);
    EXPECT_EQ(Leg(1).alt_restr, 0);
    EXPECT_EQ(Leg(1).ias_restr, kNone);
    EXPECT_EQ(Leg(1).rad_int, -1);
    EXPECT_EQ(Leg(2).type, "WPT");
    EXPECT_EQ(Leg(0).alt, 430);  // the origin's elevation
    EXPECT_EQ(Leg(0).alt_restr, 430);
    EXPECT_EQ(plan.active.ends.origin, "ORIG");
    EXPECT_EQ(plan.active.ends.dest, "DEST");
    EXPECT_EQ(plan.active.ends.company_route, "X");
    EXPECT_EQ(airports.dest_airport.ident, "DEST");
    EXPECT_EQ(plan.fms_fpln_active, kRouteEntered);
    EXPECT_EQ(plan.new_route, 1);
    EXPECT_EQ(plan.pending_stpos, 1);
    EXPECT_EQ(perf.speeds.climb_ias, 300);
    EXPECT_EQ(perf.speeds.descent_mach, 0.74);
    EXPECT_EQ(flight_log.fplog_mode, -1);
    AdvanceRouteState();
    ExecuteRoute();
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_EQ(perf.cruise_alt, 35000);
    ExpectInvariants("EXEC");
}

TEST_F(RouteFiles, ARouteThatWaitsForActivateGoesOnWaiting) {
    ASSERT_EQ(Load(kSimple), 1);
    ASSERT_EQ(Load("\xef\xbb\xbf" + std::string(kSimple)), 1);  // as some editors store it
    EXPECT_EQ(plan.fms_fpln_active, kRouteEntered);
    EXPECT_EQ(Load("[FlightPlan]\n"), 0);
    EXPECT_EQ(plan.fms_fpln_active, kRouteNone);  // there is nothing to activate
}

std::string FullRow(const std::string& ident, const std::string& via = "DIRECT --- ",
                    const std::string& restrictions = "--- --- --- 0 0") {
    return ident + " 41.5 10 INT --- " + via + " 5000 " + restrictions +
           " -999 -999.000 -1 0 0 0 0 --- --- --- 0 000 0.0 0.0 0.0 0.0 0.0 0.0\n";
}

TEST_F(RouteFiles, FieldsOfARow) {
    const std::string head = "[FlightPlan]\nORIG 39 10 APT\n", end = "DEST 45 10 APT\n";
    const struct {
        const char *row, *type, *freq;
    } kTypes[] = {
        {"AAA 40 10 WPT\n", "VOR", "110.00"},    {"EEE 44 10 VOR ---\n", "NDB", "300.0"},
        {"AAA 41 10 NDB\n", "NDB", ""},          {"BBFIX 41.5 10 WPT ---\n", "INT", ""},
        {"BBFIX 43 10 WPT\n", "WPT", ""},        {"NOBODY 43 10\n", "INT", ""},
        {"AAA 40 10 WPT 99.9\n", "WPT", "99.9"},
    };
    for (const auto& [row, type, freq] : kTypes) {
        Load(head + row + end);
        EXPECT_EQ(Leg(1).type, type) << row;
        EXPECT_EQ(Leg(1).freq, freq) << row;
    }
    Load(head + FullRow("BBFIX", "Q1 AWY", "0800016000 --- --- 0 3") + end);  // the older form of a window
    EXPECT_EQ(Leg(1).block_above, 8000);
    EXPECT_EQ(Leg(1).block_below, 16000);
    EXPECT_EQ(Leg(1).alt_restr, 0);
    EXPECT_EQ(Leg(1).restr_code, 1);
    EXPECT_EQ(Leg(1).restr_type, 0);
    EXPECT_EQ(Leg(1).via, "Q1");
    EXPECT_EQ(Leg(1).alt, 5000);
    EXPECT_EQ(Leg(1).rwy, "");
    EXPECT_EQ(Leg(1).vector, "");
    Load(head + FullRow("BBFIX", "--- ---", "7000 6000 8000 1 3") + end);
    EXPECT_EQ(Leg(1).alt_restr, 7000);
    EXPECT_EQ(Leg(1).block_below, 8000);
    EXPECT_EQ(Leg(1).restr_type, 3);
    EXPECT_EQ(Leg(1).via, "");
    Load(head + FullRow("HOLD PPOS", "HOLD HOLD") + end);  // a blank in the ident
    EXPECT_EQ(Leg(1).ident, "HOLD PPOS");
    EXPECT_EQ(Leg(1).lat, 41.5);
    EXPECT_EQ(Leg(1).via_type, "HOLD");
    Load(head + FullRow("AVERYLONGIDENTOFTWENTYFIVE") + end);
    EXPECT_EQ(Leg(1).ident, "AVERYLONGIDENTOFTWENTYFIVE");
    EXPECT_EQ(Leg(1).lon, 10);
}

TEST_F(RouteFiles, SettingsThatLoadingFollows) {
    const std::string text =
        std::string(kSimple).replace(std::string(kSimple).find("DDFIX"), 0, "DISCO 0 0 WPT\n");
    Load(text);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAA DISCO DDFIX DEST");
    EXPECT_EQ(perf.cost_index, -1);
    cfg.ExcludeDisco = 1;
    cfg.CostIndex = 70;
    Load(text);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAA DDFIX DEST");
    EXPECT_EQ(perf.cost_index, 70);
    Load("CostIndex=20\n" + text);
    EXPECT_EQ(perf.cost_index, 20);
    cfg.CostIndex = 2000000000;
    Load(text);
    EXPECT_EQ(perf.cost_index, 20);
}

TEST_F(RouteFiles, MissedApproachOnlyWhereItIsWanted) {
    const std::string text = "[FlightPlan]\nORIG 39 10 APT\n" + FullRow("BBFIX", "ILS09 APPR") +
                             FullRow("LONER", "MISSED_APPR APPR") + FullRow("LONER", "HOLD APPR") +
                             "DEST 45 10 APT\n";
    Load(text);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG BBFIX LONER LONER DEST");
    EXPECT_EQ(Leg(2).via, "MISSED APPR");
    cfg.IncludeMissedApproach = 0;
    Load(text);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG BBFIX DEST");
}

TEST_F(RouteFiles, AnActiveRouteIsModifiedAndComesBack) {
    std::string error;
    ASSERT_EQ(EnterRouteText("ORIG/16 AAA Q1 CCC DEST", error), 1) << error;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    MarkHold(2, true, 1);
    AdvanceRouteState();
    ExecuteRoute();
    ASSERT_EQ(plan.hold_cnt, 1);
    perf.speeds.climb_ias = 250;
    const std::string before = Idents(plan.active.legs, plan.active.leg_cnt);
    ASSERT_EQ(Load("CostIndex=90\nFuel=50\n[FlightPlan]\nDEST 45 10 APT\nEEE 44 10\nALTN 45 12 APT\n"), 1);
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
    EXPECT_EQ(plan.hold_cnt, 0);
    EXPECT_EQ(plan.active.ends.origin, "DEST");
    EXPECT_EQ(plan.active.ends.dest, "DEST");
    EXPECT_EQ(plan.mod.ends.dest, "ALTN");
    EXPECT_EQ(perf.speeds.climb_ias, 250);  // what is flown stays until EXEC
    EraseModification();
    ExpectInvariants("ERASE");
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), before);
    EXPECT_EQ(plan.mod.ends.origin, "ORIG");
    EXPECT_EQ(plan.mod.ends.dest, "DEST");
    EXPECT_EQ(plan.mod.ends.dep_runway, "16");
    EXPECT_EQ(plan.mod.ends.company_route, "");
    EXPECT_EQ(airports.origin_airport.ident, "ORIG");
    EXPECT_EQ(plan.hold_cnt, 1);
    EXPECT_EQ(plan.new_route, 0);  // else the next EXEC would begin the route anew
    EXPECT_EQ(perf.planned_fuel, 0);
    EXPECT_EQ(perf.cost_index, -1);
    Load("CostIndex=90\n[FlightPlan]\nDEST 45 10 APT\nEEE 44 10\nALTN 45 12 APT\n");
    ExecuteRoute();
    ExpectInvariants("EXEC");
    EXPECT_EQ(Idents(plan.active.legs, plan.active.leg_cnt), "DEST EEE ALTN");
    EXPECT_EQ(plan.active.ends.dest, "ALTN");
    EXPECT_EQ(plan.active.ends.company_route, "X");
    EXPECT_EQ(perf.cost_index, 90);
    EXPECT_EQ(plan.active.stpos, 1);
}

TEST_F(RouteFiles, WhatCannotBeReadLeavesNoLegs) {
    ASSERT_EQ(Load(kSimple), 1);
    EXPECT_EQ(LoadCompanyRoute("GONE.PLN"), 0);
    EXPECT_EQ(plan.mod.leg_cnt, 3);  // nothing has been converted, so nothing is read
    EXPECT_EQ(LoadCompanyRoute("GONE.RTE"), 0);
    EXPECT_EQ(plan.mod.leg_cnt, -1);
    EXPECT_EQ(plan.route_cnt, 0);
    EXPECT_EQ(Load("ORIG 39 10 APT\n"), 0);  // no rows without their heading
    EXPECT_EQ(plan.mod.leg_cnt, -1);
    ASSERT_EQ(Load(kSimple), 1);
    ExecuteRoute();
    ASSERT_EQ(plan.fms_fpln_active, kRouteActive);
    EXPECT_EQ(LoadCompanyRoute("GONE.RTE"), 0);
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
    ExecuteRoute();  // nothing to fly
    EXPECT_EQ(plan.active.leg_cnt, 3);
    EraseModification();
    EXPECT_EQ(plan.mod.leg_cnt, 3);
}

TEST_F(RouteFiles, HostileFiles) {
    const std::string head = "[FlightPlan]\n[flightplan]\nORIG 39 10 APT\n", end = "DEST 45 10 APT\n";
    const std::string nul("BB\0FIX 41.5\0 10 INT\n", 20), long_token(10000, 'A');
    std::string many = head;
    for (int i = 0; i < 100000; ++i) many += "F" + std::to_string(i) + " 41 10 INT\n";
    struct Row {
        std::string text, idents;
    };
    const Row rows[] = {
        {head + "DISCO\nDISCO\nTHEN 0 0 OAWY\nDISCO\nAAA 40 10\n" + end, "ORIG DISCO AAA DEST"},
        {"[FlightPlan]\nDISCO\n" + end, "DEST"},
        {head + nul + end, "ORIG BB DEST"},
        {head + long_token + "\n" + end, "ORIG " + long_token.substr(0, 499) + " DEST"},
        {head + "Foo=1\nCruiseAlt=1e400\nCostIndex=99999999999\nFuel=nan\nTripFuel=-5\n" + end, "ORIG DEST"},
        {head +
             "NUMS nan 1e400 INT --- A B -1e308 inf 1e9 1e9 -7 99 1e400 nan -inf 9 -3 -2147483648 -5 --- --- "
             "RT 1e99 999 91 181 nan inf 1e5 1e5\n" +
             end,
         "ORIG NUMS DEST"},
        {std::string("\xef\xbb\xbf[FlightPlan]\n") + end, "DEST"},
    };
    for (const Row& row : rows) {
        Load(row.text);
        EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), row.idents);
        if (plan.mod.leg_cnt < 1) continue;
        plan.fms_fpln_active = kRouteActivated;
        ExecuteRoute();
        ExpectInvariants(row.idents.substr(0, 80));
        plan.fms_fpln_active = kRouteNone;
    }
    EXPECT_EQ(plan.mod.entries.cruise_alt, 0);
    EXPECT_EQ(perf.cost_index, -1);
    Load(many + end);
    EXPECT_EQ(plan.mod.leg_cnt, 100001);
}

TEST_F(RouteFiles, UnknownAirportsAreEndsWithoutRunways) {
    Load("[FlightPlan]\nZZZA 39 10 APT\nAAA 40 10\nZZZB 45 10 APT\n");
    EXPECT_EQ(plan.active.ends.origin, "ZZZA");
    EXPECT_EQ(airports.origin_airport.ident, "ZZZA");
    EXPECT_EQ(airports.dest_airport.runway_cnt, 0);
    AdvanceRouteState();
    ExecuteRoute();
    EXPECT_EQ(plan.active.ends.origin, "ZZZA");
    EXPECT_EQ(plan.active.ends.company_route, "X");
}

TEST_F(RouteFiles, TheWrittenFile) {
    plan.active.leg_cnt = 1;
    FlightPlanLeg& leg = plan.active.legs[0];
    leg.ident = "KPDX";
    leg.lat = 45.58871;
    leg.lon = -122.59751;
    leg.type = "APT";
    leg.alt = 30;
    plan.active.legs[1].ident = "HOLD PPOS";
    plan.active.legs[1].via = "MISSED APPR";
    plan.active.legs[1].via_type = "APPR";
    plan.active.legs[1].type = "OTHER";
    plan.active.legs[1].from_hdg = 5;
    plan.active.legs[1].block_above = 1000;
    perf.cruise_alt = 35000;
    ASSERT_EQ(SaveCompanyRoute("pdx.rte"), 1);
    const std::string text = FileText(host.root / kFolder / "pdx.rte");
    EXPECT_TRUE(
        text.starts_with("CruiseAlt=35000\nCostIndex=-1\n[FlightPlan]\n;-----------  Id         Lat"));
    EXPECT_NE(
        text.find(
            "\n            KPDX    45.58871   -122.59751 APT    ---          ---   ---    30   ---    ---"
            "    ---     0     0   -999  -999.000   -1      0       0    0       0      ---  ---        "
            "---       0   000     0.00000      0.00000     0.00000      0.00000     0.00000      "
            "0.00000 \n"),
        std::string::npos)
        << text;
    EXPECT_NE(
        text.find("   HOLD PPOS     0.00000      0.00000 WPT    ---  MISSED_APPR  APPR  -999   ---   1000"),
        std::string::npos)
        << text;
    EXPECT_EQ(plan.active.legs[1].type, "WPT");
}

TEST_F(RouteFiles, NamesNeverLeaveTheFolder) {
    plan.active.leg_cnt = 1;
    for (const std::string& name :
         {std::string("..\\x.rte"), std::string("../x.rte"), std::string("\\x.rte"),
          std::string("/elsewhere/x.rte"), std::string("C:\\x.rte"), std::string("c:x.rte"),
          std::string(".."), std::string("."), std::string(), std::string("NUL"), std::string("com1.rte"),
          std::string("Aux .rte"), std::string("x."), std::string("x*.rte"), std::string("x\0.rte", 6),
          std::string("x\n.rte"), std::string(200, 'X')}) {
        EXPECT_EQ(SaveCompanyRoute(name), 0) << name;
        EXPECT_EQ(LoadCompanyRoute(name), 0) << name;
    }
    EXPECT_TRUE(ListFolder("\\Velarion\\TZ900\\flightplans").empty());
    EXPECT_EQ(SaveCompanyRoute("COM.RTE"), 1);
    EXPECT_EQ(ListFolder("\\Velarion\\TZ900\\flightplans").size(), 1u);
}

// What a file keeps of a leg, to the file's own precision. A constraint that is none comes back as 0.
void ExpectSameLeg(const FlightPlanLeg& a, const FlightPlanLeg& b) {
    using L = FlightPlanLeg;
    for (const auto text : {&L::ident, &L::type, &L::freq, &L::via, &L::rwy, &L::appr_wpt_type, &L::vector})
        EXPECT_EQ(a.*text, b.*text) << a.ident;
    EXPECT_EQ(a.via.empty() ? "" : a.via_type, b.via_type) << a.ident;
    for (const auto code : {&L::restr_code, &L::restr_type, &L::flyover, &L::dep_turn, &L::hold_pos})
        EXPECT_EQ(a.*code, b.*code) << a.ident;
    for (const auto limit : {&L::alt_restr, &L::block_above, &L::block_below})
        EXPECT_NEAR(std::max(a.*limit, 0.0), b.*limit, 0.5) << a.ident;
    for (const auto whole : {&L::alt, &L::ias_restr, &L::rad_int, &L::step_alt, &L::until_alt, &L::from_hdg})
        EXPECT_NEAR(a.*whole, b.*whole, 0.5) << a.ident;
    EXPECT_NEAR(a.mach_restr, b.mach_restr, 0.0005) << a.ident;
    for (const auto angle : {&L::lat, &L::lon, &L::anchor_lat, &L::anchor_lon, &L::vector_lat, &L::vector_lon,
                             &L::vector_trk_lat, &L::vector_trk_lon})
        EXPECT_NEAR(a.*angle, b.*angle, 0.00001) << a.ident;
}

void SaveAndLoad(const std::string& route, int approach) {
    std::string error;
    ASSERT_EQ(EnterRouteText(route, error), 1) << error;
    if (approach > 0) SelectApproach(1, approach);
    FlightPlanLeg& edited = plan.mod.legs[2];
    edited.step_alt = 37000;
    edited.mach_restr = 0.812;
    edited.rad_int = 270;
    edited.restr_code = 3;
    edited.restr_type = 3;
    edited.ias_restr = 280;
    edited.alt_restr = 0;
    edited.block_above = 9000;
    edited.block_below = 11000;
    edited.vector_trk_lat = -9.123456;
    plan.mod.entries.cruise_alt = 35000;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    ASSERT_EQ(SaveCompanyRoute("SAVED.RTE"), 1);
    const auto saved = plan.active.legs;
    const int count = plan.active.leg_cnt, holds = plan.hold_cnt;
    const std::string rows = Rows();
    for (const RouteStatus state : {kRouteActive, kRouteNone}) {
        plan.fms_fpln_active = state;
        ASSERT_EQ(LoadCompanyRoute("saved"), 0);  // names are whole
        ASSERT_EQ(LoadCompanyRoute("saved.rte"), 1);
        ASSERT_EQ(plan.mod.leg_cnt, count);
        for (int i = 1; i <= count; ++i) ExpectSameLeg(saved[i], plan.mod.legs[i]);
        EXPECT_EQ(plan.hold_cnt, holds);
        EXPECT_EQ(Rows(), rows);
        EXPECT_EQ(plan.mod.entries.cruise_alt, 35000);
        ExecuteRoute();
        ExpectInvariants(route);
        ASSERT_EQ(plan.active.leg_cnt, count);
        for (int i = 1; i <= count; ++i) {
            EXPECT_EQ(saved[i].ident, plan.active.legs[i].ident);
            EXPECT_NEAR(saved[i].lat, plan.active.legs[i].lat, 0.01) << saved[i].ident;
        }
    }
}

TEST(RouteFilesRoundTrip, DemonstrationRoute) {
    FakeHost host;
    host.navdata = SourceDir() + "/data/root/Velarion/TZ900/Navdata";
    LoadNavTables();
    SaveAndLoad("KSEA/16L ALDER1 ALDER J1 AVE DCT FIM FIM2 KLAX/24R", 1);
    EXPECT_EQ(plan.hold_cnt, 1);
    // the stored procedures give way to newly selected ones
    plan.fms_fpln_active = kRouteActive;
    ASSERT_TRUE(SelectSidByName("EPH1"));
    for (int i = 1; i <= plan.mod.leg_cnt; ++i) EXPECT_NE(plan.mod.legs[i].via, "ALDER1");
    SelectApproach(1, 2);
    ExpectInvariants("another approach");
    EXPECT_EQ(plan.hold_cnt, 1);
}

TEST(RouteFilesRoundTrip, WorldRoute) {
    FakeHost host;
    if (!UseWorldNavdata(host)) GTEST_SKIP() << "no world navigation data";
    LoadNavTables();
    SaveAndLoad("EGLL DVR UL9 KONAN EDDF", 1);
}

}  // namespace
