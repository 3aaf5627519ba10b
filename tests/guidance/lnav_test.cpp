#include "guidance/lnav.h"

#include <cmath>

#include "guidance/guidance_test.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/vnav.h"
#include "support/file_text.h"

namespace {

using LnavTest = GuidanceTest;

// Eastward along the equator, 30 nm a leg.
const std::vector<GuidanceTest::Fix> kEast = {
    {"ALPHA", 0, 0}, {"BRAVO", 0, 0.5}, {"CHARL", 0, 1}, {"DELTA", 0, 1.5}};

TEST_F(LnavTest, WithoutAPlanNothingMoves) {
    lnav.lnav_init_mode = 1;
    lnav.holding = lnav.hold_point = 1;  // the plan has been thrown away in a hold
    RunASecond();
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(lnav.xtk, -99);
    EXPECT_EQ(lnav.lnav_init_mode, 0);
    EXPECT_EQ(lnav.wpt_dist, 0);
}

TEST_F(LnavTest, LegAndCrossTrack) {
    FlyRoute(kEast);
    sim.mgvar = 15;
    PlaceAt(0.02, 0.1, 75);  // 1.2 nm left of the leg, 6 nm along it
    RunASecond();
    EXPECT_NEAR(lnav.leg_len, 30, 1e-6);
    EXPECT_NEAR(lnav.leg_crs, 75, 1e-6);
    EXPECT_NEAR(lnav.wpt_dist, std::hypot(24, 1.2), 0.001);
    EXPECT_NEAR(lnav.wpt_brg, 75 + std::atan(1.2 / 24) * 57.29578, 0.01);
    EXPECT_NEAR(lnav.xtk, 1.2, 0.002);
    EXPECT_EQ(lnav.xtk_side, 1);
    EXPECT_EQ(lnav.xtk_shown, lnav.xtk);
    // steered to a point 3.6 nm further on the leg
    EXPECT_NEAR(lnav.lookahead, 3.6, 1e-9);
    EXPECT_NEAR(lnav.aim_lat, 0, 1e-6);
    EXPECT_NEAR(lnav.aim_lon, 0.16, 0.001);
    // that is 18.4 degrees off, too much: 10 degrees right of the bearing to the fix
    EXPECT_NEAR(lnav.fms_hdg, lnav.wpt_brg + 10, 1e-6);
    PlaceAt(-0.01, 0.1, 75);  // 0.6 nm right: straight to the point
    RunASecond();
    EXPECT_EQ(lnav.xtk_side, 2);
    EXPECT_NEAR(lnav.fms_hdg, 75 - std::atan(0.6 / 3.6) * 57.29578, 0.1);
    PlaceAt(-0.05, -0.1, 75);  // not yet on the leg: the point lies 3.6 nm beyond its start
    RunASecond();
    EXPECT_NEAR(lnav.aim_lon, 0.06, 1e-6);
    PlaceAt(3.5, 0.4, 90);
    RunASecond();
    EXPECT_EQ(lnav.xtk, 125);
}

TEST_F(LnavTest, ANorthboundCourseReads360) {
    FlyRoute({{"A", 0, 0}, {"B", 1, 0}});
    sim.mgvar = -0.3;
    PlaceAt(0.1, 0, 0);
    RunASecond();
    EXPECT_NEAR(lnav.leg_crs, 360.3, 1e-6);
    EXPECT_NEAR(lnav.wpt_brg, 360.3, 1e-6);
    EXPECT_NEAR(lnav.fms_hdg, 0.3, 1e-6);
}

TEST_F(LnavTest, LookaheadGrowsWithTheSimulationRate) {
    FlyRoute(kEast);
    PlaceAt(0, 0.1, 90);
    const double rates[][2] = {{1, 3.6}, {2, 3.6}, {4, 4.6}, {8, 5.6}, {16, 6.6}, {12, 3.6}};
    for (const auto& [rate, lookahead] : rates) {
        sim.sim_rate = rate;
        RunASecond();
        EXPECT_NEAR(lnav.lookahead, lookahead, 1e-9) << rate;
    }
}

TEST_F(LnavTest, OnTheTrueReferenceTheBearingToTheFixIsFlown) {
    FlyRoute(kEast);
    sim.mgvar = 15;
    host.NamedVar("TZ_OH_HDG_REF_Button") = 1;
    PlaceAt(0.02, 0.1, 75);
    RunASecond();
    EXPECT_NEAR(lnav.wpt_brg, 90 + std::atan(1.2 / 24) * 57.29578, 0.01);
    EXPECT_EQ(lnav.fms_hdg, lnav.wpt_brg);
    EXPECT_NEAR(lnav.leg_crs, 75, 1e-6);
}

TEST_F(LnavTest, WhereTheNextLegStarts) {
    struct {
        const char* what;
        double next_lat, next_lon;  // of the fix behind BRAVO, which lies at 0, 0.5
        int flyover;
        double lon;  // of the aircraft
        double turn_code, distance;
    } const cases[] = {
        // radius at 360 kt by the law of path_test: 6.8033; speed factor 0.74; the tangent of 45 or 80
        // degrees
        {"fly-over: eight seconds", 1, 0.5, 1, 0.4, -2, 0.8},
        {"farther than 15 nm", 1, 0.5, 0, 0.2, -1, 0.36},
        {"straight on", 0, 1, 0, 0.4, 0, 0.36},
        {"left by ninety", 1, 0.5, 0, 0.4, 90, 6.8033 * 0.74 * 0.92 + 0.36},
        {"right by ninety", -1, 0.5, 0, 0.4, 90, 6.8033 * 0.74 * 0.92 + 0.36},
        {"nearly back: half the way", 0.1, 0, 0, 0.4, 168, 3},
        {"nearly back and near: all of it", 0.1, 0, 0, 0.45, 168, 5.671282 * 6.8033 * 0.74 * 0.95 + 0.36},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        plan.active.leg_cnt = 0;
        FlyRoute({{"ALPHA", 0, 0}, {"BRAVO", 0, 0.5}, {"CHARL", c.next_lat, c.next_lon}});
        plan.active.legs[1].flyover = c.flyover;
        lnav = {};
        PlaceAt(0, c.lon, 270);  // flying the other way, so that nothing sequences
        RunASecond();
        EXPECT_EQ(lnav.turn_code, c.turn_code);
        EXPECT_NEAR(lnav.wpt_chg_dist, c.distance, 0.01);
        EXPECT_EQ(plan.active.stpos, 1);
    }
}

TEST_F(LnavTest, WhatSequences) {
    struct Case {
        const char* what;
        double lon, heading;  // of the aircraft; BRAVO lies at 0.5
        bool sequences;
        void (*change)();
    } const cases[] = {
        {"short of the turn", 0.493, 90, false, [] {}},
        {"inside 0.36 nm", 0.495, 90, true, [] {}},
        {"heading 90 degrees off", 0.495, 0, true, [] {}},
        {"heading 91 degrees off", 0.495, 359, false, [] {}},
        {"low", 0.495, 90, false, [] { sim.radio_alt_ft = 399; }},
        {"low at the missed approach point", 0.495, 90, true,
         [] {
             sim.radio_alt_ft = 100;
             plan.active.legs[1].appr_wpt_type = "MAP";
         }},
        {"holding", 0.495, 90, false,
         [] {
             lnav.holding = lnav.hold_point = 1;
             plan.hold_cnt = 1;
             plan.HoldList[1].leg = 1;
             plan.HoldList[1].points[0].lon = 0.5;
             plan.active.legs[1].hold_pos = 1;
         }},
        {"a heading leg needs the pilot", 0.4999, 90, false, [] { plan.active.legs[1].ident = "VECTORS"; }},
        {"passed abeam, 6 nm beside", 0.501, 90, true, [] { sim.plane_lat = 0.1; }},
        {"passed abeam, flying away", 0.501, 271, false, [] { sim.plane_lat = 0.1; }},
        {"asked for, from anywhere", 0.1, 270, true, [] { lnav.force_sequence = 1; }},
        {"asked for, on a heading leg", 0.1, 90, true,
         [] {
             plan.active.legs[1].ident = "VECTORS";
             lnav.force_sequence = 1;
         }},
        {"asked for, low", 0.1, 90, true,
         [] {
             sim.radio_alt_ft = 0;
             lnav.force_sequence = 1;
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        plan = {};
        lnav = {};
        SetUp();
        FlyRoute(kEast);
        PlaceAt(0, c.lon, c.heading);
        c.change();
        RunASecond();
        EXPECT_EQ(plan.active.stpos, c.sequences ? 2 : 1);
        EXPECT_EQ(lnav.force_sequence, 0);
    }
}

TEST_F(LnavTest, AFixOverflownOnAWideTurnIsLeftBehind) {
    FlyRoute(kEast);
    lnav.lnav_engaged = 1;
    PlaceAt(0.05, 0.51, 330);  // past BRAVO on a turn that leads away from the leg
    RunASecond();
    EXPECT_EQ(plan.active.stpos, 1) << "only with the autopilot on";
    sim.ap_master = 1;
    vnav.toc = 1;
    vnav.vnav_spd_pending = 1;
    RunASecond();
    EXPECT_EQ(plan.active.stpos, 2);
    EXPECT_EQ(vnav.tod_shortcut, 1);
    EXPECT_EQ(vnav.vnav_spd_pending, 0);
}

TEST_F(LnavTest, PassingAFix) {
    FlyRoute({{"ALPHA", 0, 0}, {"BRAVO", 0, 0.5}, {"DISCO", 0, 0}, {"CHARL", 0, 1}, {"DELTA", 0, 1.5}});
    FlightPlanLeg& bravo = plan.active.legs[1];
    bravo.alt = 24000;
    bravo.restr_code = 3;
    bravo.restr_type = 1;
    bravo.alt_restr = 20000;
    bravo.step_alt = 37000;
    perf.cruise_alt = 35000;
    perf.fms_step_to_alt = 37000;
    cfg.autostepclimb = 1;
    vnav.toc = 1;
    cfg.WeightUnit = "KGS";
    sim.total_fuel = 50000;
    perf.FuelEntry = 1000;
    lnav.report_ident = "BRAVO";
    PlaceAt(0, 0.495, 90);
    RunASecond();
    EXPECT_EQ(plan.active.stpos, 3) << "the discontinuity is stepped over";
    EXPECT_EQ(bravo.ata, "09:05");
    EXPECT_EQ(bravo.restr_code, 0);
    EXPECT_EQ(bravo.restr_type, 0);
    EXPECT_EQ(lnav.last_fix_lon, 0.5);
    EXPECT_EQ(lnav.last_fix_alt, 24000);
    EXPECT_EQ(lnav.report_due, 1);
    EXPECT_EQ(vnav.step_due, 1);
    EXPECT_EQ(host.events, (std::vector<std::pair<int, int>>{{0x1024c, 37000}}));
    const PositionReport& report = plan.PositionReports[1];
    EXPECT_EQ(report.leg.ident, "BRAVO");
    EXPECT_EQ(report.leg.restr_code, 3);
    EXPECT_EQ(report.time, "0905Z");
    EXPECT_EQ(report.altitude, 25000);
    EXPECT_NEAR(report.fuel, 51000 * 0.45359237, 1e-6);
    EXPECT_EQ(plan.active.active_leg.from, "BRAVO");
    EXPECT_EQ(plan.active.active_leg.to, "CHARL");
    EXPECT_EQ(plan.mod.active_leg.to, "CHARL");
    EXPECT_NEAR(plan.active.active_leg.course, 90, 1e-6);
    EXPECT_EQ(plan.mod.stpos, 3);
    EXPECT_NEAR(lnav.leg_len, 30, 1e-6);
    EXPECT_NEAR(lnav.wpt_dist, 30.3, 0.01);
}

TEST_F(LnavTest, ADirectToPendingKeepsItsOwnLeg) {
    FlyRoute(kEast);
    plan.mod.active_leg.from = "DIRECT";
    plan.direct_to_pending = 1;
    PlaceAt(0, 0.495, 90);
    RunASecond();
    EXPECT_EQ(plan.active.active_leg.to, "CHARL");
    EXPECT_EQ(plan.mod.active_leg.from, "DIRECT");
}

TEST_F(LnavTest, BehindTheLastFixTheHeadingStays) {
    FlyRoute(kEast, 3);
    lnav.lnav_engaged = 1;
    PlaceAt(0.01, 1.4, 90);
    RunASecond();
    const double heading = lnav.fms_hdg;
    PlaceAt(0.01, 1.51, 90);
    RunASecond();
    EXPECT_EQ(plan.active.stpos, 3);
    EXPECT_EQ(lnav.lnav_engaged, 0);
    PlaceAt(0.01, 1.8, 90);
    RunASecond();
    EXPECT_EQ(lnav.fms_hdg, heading);
    EXPECT_NEAR(lnav.wpt_dist, 18, 0.05);
    // a longer plan is flown on
    plan.active.legs[4] = plan.active.legs[3];
    plan.active.legs[4].ident = "ECHO";
    plan.active.legs[4].lon = 3;
    plan.active.leg_cnt = 4;
    RunASecond();
    EXPECT_EQ(plan.active.stpos, 4);
    EXPECT_NEAR(lnav.fms_hdg, 90, 11);
}

TEST_F(LnavTest, AChangedLegIsMeasuredBeforeItIsJudged) {
    FlyRoute(kEast);
    PlaceAt(0, 0.49, 90);
    RunASecond();
    EXPECT_NEAR(lnav.wpt_dist, 0.6, 0.01);
    // EXEC makes DELTA the TO leg while the old distance is nearly nothing
    plan.active.stpos = 3;
    plan.active.active_leg = {"DIRECT", 0, 0.49, "DELTA", 0, 1.5, 0, 0};
    lnav.wpt_chg_dist = 9;
    Tick();
    EXPECT_EQ(plan.active.stpos, 3);
    EXPECT_EQ(lnav.plan_finished, 0);
    EXPECT_NEAR(lnav.wpt_dist, 60.6, 0.01);
}

TEST_F(LnavTest, AProceduresTurnIsMadeTheDemandedWay) {
    struct {
        int dep_turn;
        double heading, wanted;
    } const cases[] = {{1, 45, 315},  {2, 45, 90}, {1, 280, 190}, {2, 280, 90},
                       {2, 120, 210}, {0, 45, 90}, {1, 86, 90}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.heading);
        plan = {};
        lnav = {};
        FlyRoute(kEast, 2);
        plan.active.legs[1].dep_turn = c.dep_turn;
        lnav.passed_chg_dist = 5;
        PlaceAt(0, 0.52, c.heading);
        RunASecond();
        EXPECT_NEAR(lnav.fms_hdg, c.wanted, 1e-6);
        PlaceAt(0, 0.6, c.heading);  // 6 nm behind the fix the turn is over
        RunASecond();
        EXPECT_NEAR(lnav.fms_hdg, 90, 1e-6);
    }
}

TEST_F(LnavTest, AHeadingLegIsFlownAsTold) {
    FlyRoute(kEast);
    plan.active.legs[1].ident = "VECTORS";
    plan.active.legs[1].from_hdg = 222;
    PlaceAt(0, 0.1, 90);
    RunASecond();
    EXPECT_EQ(lnav.fms_hdg, 222);
    EXPECT_EQ(lnav.wpt_brg, 222);
}

TEST_F(LnavTest, AStoredTrackIsJoinedUntilTheLegIsNear) {
    FlyRoute(kEast, 2);
    plan.active.active_leg.from = "DIRECT";
    lnav.lnav_init_mode = 1;  // north along 0.6 east, to the equator
    lnav.lnav_init_lat = -0.5;
    lnav.lnav_init_lon = 0.6;
    lnav.lnav_join_trk_lat = 0;
    lnav.lnav_join_trk_lon = 0.6;
    lnav.lnav_join_trk = 0;
    PlaceAt(-0.3, 0.61, 0);
    RunASecond();
    EXPECT_EQ(lnav.lnav_init_mode, 1);
    EXPECT_NEAR(lnav.aim_lat, -0.3 + 3.6 / 60, 0.001);
    EXPECT_NEAR(lnav.aim_lon, 0.6, 1e-6);
    EXPECT_NEAR(lnav.fms_hdg, 360 - std::atan(0.6 / 3.6) * 57.29578, 0.2);
    PlaceAt(-0.005, 0.6, 45);
    RunASecond();
    EXPECT_EQ(lnav.lnav_init_mode, 0);
    EXPECT_EQ(plan.active.active_leg.from, "BRAVO");
    EXPECT_EQ(plan.active.active_leg.from_lon, 0.5);
}

TEST_F(LnavTest, TheHostsHeadingBugFollowsOnlyWhenAskedTo) {
    FlyRoute(kEast);
    PlaceAt(-0.01, 0.1, 90);
    lnav.lnav_engaged = 1;
    RunASecond();
    EXPECT_TRUE(host.events.empty());
    cfg.LnavDefAp = 1;
    RunASecond();
    RunASecond();
    EXPECT_EQ(host.events, (std::vector<std::pair<int, int>>{{0x101fa, 81}}));  // 90 - 9.46, once
}

TEST_F(LnavTest, TheTurnLogIsWrittenInFlight) {
    cfg.LogWptTurnData = 1;
    host.PutFile("wptturn.csv", "old\n");
    FlyRoute(kEast);
    PlaceAt(0.02, 0.1, 90);
    sim.bank_deg = -12.4;
    sim.ias_kt = 100;
    RunASecond();
    EXPECT_EQ(FileText(host.root / "wptturn.csv"), "old\n");
    sim.ias_kt = 250;
    time_base.wpt_log_ticks = 41;
    time_base.tick_phase = 17;
    time_base.tick2s_phase = 17;
    for (int i = 0; i < 9; ++i) Tick();  // two passes: the header and a line
    EXPECT_EQ(
        FileText(host.root / "wptturn.csv"),
        "\"FS CYCLE\",\"WPT ID\",\"TAS\",\"WPT DIST\",\"TRADIUS\",\"ANGLE\",\"WPT_CHG_DIST\",\"PLANE HDG\","
        "\"FMS HDG\",\"BANK ANGLE\",\"XTK ERR\"\n"
        "41,BRAVO,360,24.03,0.0,0,0.36,090,103,-12,-1.2\n");
}

TEST_F(LnavTest, TheBottomOfDescentIsLookedForOnceAFixIsNear) {
    FlyRoute(kEast);
    plan.active.legs[2].restr_code = 1;
    plan.active.legs[2].restr_type = 0;
    plan.active.legs[2].alt_restr = 11000;
    perf.cruise_alt = 35000;
    vnav.toc = vnav.tod = 1;
    PlaceAt(0, 0.3, 90);
    RunASecond();
    EXPECT_EQ(plan.active.bod_pos, 0);
    PlaceAt(0, 0.495, 270);  // flying the other way, so that the fix isn't passed
    RunASecond();
    EXPECT_EQ(plan.active.bod_pos, 2);
    EXPECT_EQ(vnav.cross_at_elev, 11000);
    EXPECT_EQ(vnav.cross_at_lon, 1);
}

}  // namespace
