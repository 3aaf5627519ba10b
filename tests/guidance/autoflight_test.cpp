#include "guidance/autoflight.h"

#include "fmc/performance/published_values.h"
#include "guidance/guidance_test.h"
#include "guidance/mcp.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/vnav.h"

namespace {

using AutoflightContractTest = GuidanceTest;
using McpTest = GuidanceTest;

TEST_F(AutoflightContractTest, TargetsArePublished) {
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 999);
    EXPECT_EQ(host.NamedVar("vnav_fpa"), 999);
    host.NamedVar("xtk_err_dist") = 7;
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("xtk_err_dist"), 7) << "left alone without a plan";

    FlyRoute({{"A", 0, 0}, {"B", 0, 0.5}, {"C", 1, 0.5}});
    lnav.fms_hdg = 123;
    lnav.xtk = 1.5;
    lnav.xtk_side = 2;
    lnav.turn_code = 90;
    vnav.vnav_ias = 290;
    vnav.vnav_mach = 0.84;
    vnav.vnav_vert_dev = -250;
    vnav.cross_at_elev = 11000;
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 123);
    EXPECT_EQ(host.NamedVar("xtk_err_dist"), 1.5);
    EXPECT_EQ(host.NamedVar("xtk_err_dir"), 2);
    EXPECT_EQ(host.NamedVar("tz_fpln_next_wpt_angle"), 90);
    EXPECT_EQ(host.NamedVar("vnav_spd"), 290);
    EXPECT_EQ(host.NamedVar("vnav_vert_dev"), -250);
    EXPECT_EQ(host.NamedVar("fms_cross_at_elev"), 11000);
    EXPECT_EQ(host.NamedVar("vnav_fpa"), 999) << "the climb has no path";
    vnav.toc = 1;
    vnav.vnav_spd_mode = 2;
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("vnav_fpa"), 0);
    EXPECT_EQ(host.NamedVar("vnav_spd"), 0.84);
    vnav.tod = 1;
    lnav.holding = 1;
    lnav.hold_point = 2;
    lnav.hold_hdg = 45;
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("vnav_fpa"), 2.4);
    EXPECT_EQ(host.NamedVar("vnav_spd"), 230);
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 45);
    plan.fms_fpln_active = 2;
    PublishGuidance();
    EXPECT_EQ(host.NamedVar("lnav_hdg"), 999);
}

TEST_F(AutoflightContractTest, TheFinalIsPublishedByItsRunway) {
    airports.dest_airport.runway_cnt = 1;
    RunwayData& runway = airports.dest_airport.runways[1];
    runway.lon = 1;
    runway.course = 92;
    plan.final_appr_crs = 85;
    plan.map_ident = "RW09";
    sim.mgvar = 2;
    const struct {
        int runway;
        const char *approach, *ils;
        double course, bearing, dist, by_route;
    } kCases[] = {{0, "RNV", "", 0, 0, 0, 0},
                  {1, "RNV", "110.30", 85, 88, 30, 1},
                  {1, "ILS", "110.30", 85, 88, 30, 0},
                  {1, "-", "110.30", 92, 88, 30, 0},
                  {1, "-", "", 92, 88, 30, 1}};
    PlaceAt(0, 0.5, 90);
    for (const auto& row : kCases) {
        plan.mod.procedures.fms_dest_rwy_pos = row.runway;
        plan.mod.procedures.appr_type = row.approach;
        runway.ils_freq = row.ils;
        PublishApproachValues();
        EXPECT_EQ(host.NamedVar("tz_dest_rwy_fac"), row.course) << row.approach;
        EXPECT_NEAR(host.NamedVar("tz_dest_rwy_trk"), row.bearing, 1e-6);
        EXPECT_NEAR(host.NamedVar("tz_dest_rwy_nm"), row.dist, 1e-6);
        EXPECT_EQ(host.NamedVar("tz_fmc_ian_appr"), row.by_route) << row.approach;
    }
}

TEST_F(AutoflightContractTest, ModesAreCopiedAndNewOnesBoxed) {
    host.NamedVar("ap_lat_mode") = 3;
    host.NamedVar("ap_vert_mode_armed") = 10;
    host.NamedVar("at_mode") = 2;
    host.NamedVar("ap_master_r") = 1;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_lat_mode, 3);
    EXPECT_EQ(autoflight.ap_vert_mode_armed, 10);
    EXPECT_EQ(autoflight.fma_roll_timer, 180);
    EXPECT_EQ(autoflight.fma_pitch_timer, 0);
    EXPECT_EQ(autoflight.fma_at_timer, 180);
    EXPECT_EQ(autoflight.ap_status_timer, 180);
    for (int i = 0; i < 10; ++i) StepAutoflightTimers();
    host.NamedVar("at_mode") = 0;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.fma_roll_timer, 170);
    EXPECT_EQ(autoflight.fma_at_timer, 170) << "an empty mode draws no new box";
    EXPECT_EQ(autoflight.ap_status_timer, 170);
    host.NamedVar("ap_master_r") = 0;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_status_timer, 0);
}

TEST_F(AutoflightContractTest, EngagementFollowsTheModes) {
    struct {
        int lateral, armed, vertical, def_ap, lnav_engaged, vnav_engaged;
    } const steps[] = {
        {0, 6, 0, 0, 1, 0}, {6, 0, 5, 0, 1, 1}, {3, 0, 6, 0, 0, 1}, {3, 0, 1, 0, 0, 0},
        {6, 0, 0, 1, 1, 0}, {3, 0, 0, 1, 1, 0},  // driven by the host's own autopilot it stays
    };
    for (const auto& step : steps) {
        host.NamedVar("ap_lat_mode") = step.lateral;
        host.NamedVar("ap_lat_mode_armed") = step.armed;
        host.NamedVar("ap_vert_mode") = step.vertical;
        cfg.LnavDefAp = step.def_ap;
        ReadAutoflightModes();
        EXPECT_EQ(lnav.lnav_engaged, step.lnav_engaged) << step.lateral << step.armed;
        EXPECT_EQ(vnav.vnav_engaged, step.vnav_engaged) << step.vertical;
    }
}

TEST_F(AutoflightContractTest, DisconnectsWarnUntilTheyAreAcknowledged) {
    double& request = host.NamedVar("ap_master_disconnect");
    double& lamp = host.NamedVar("TZ_MCP_Annun_WARN");
    double& autopilot = host.NamedVar("tz_ap_master_l");
    double& throttle = host.NamedVar("at_armed_left") = 1;
    // the pilot disconnects: no warning of ours, and the autothrottle stays
    autopilot = 1;
    request = 1;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_disc_warning, 0);
    EXPECT_EQ(throttle, 1);
    EXPECT_EQ(request, 1) << "AutoflightLogic has yet to take it";
    // the autopilot has let go
    autopilot = 0;
    request = 2;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_disc_warning, 1);
    EXPECT_EQ(autoflight.ap_disc_latch, 1);
    EXPECT_EQ(lamp, 1);
    EXPECT_EQ(request, 0);
    // a second press acknowledges
    request = 1;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_disc_warning, 0);
    EXPECT_EQ(lamp, 0);
    EXPECT_EQ(request, 0);
    // engaged again: with the setting, the flight computers come back
    cfg.DiscATOnAPDisc = 1;
    cfg.PfcSwitch = 4;
    autopilot = 1;
    ReadAutoflightModes();
    EXPECT_EQ(autoflight.ap_disc_latch, 0);
    EXPECT_EQ(cfg.PfcSwitch, 7);
    EXPECT_EQ(host.NamedVar("TZ_OH_PFC_G_Switch"), 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_PFC_Safety_Switch"), 1);
    // and the next disconnect takes the autothrottle along
    request = 1;
    ReadAutoflightModes();
    EXPECT_EQ(throttle, 0);
    EXPECT_EQ(host.NamedVar("at_armed_right"), 0);
}

TEST_F(McpTest, ButtonsWriteTheirRequests) {
    struct {
        const char* button;
        const char* variable;
        double value;
        int tick_phase, event;
    } const rows[] = {
        {"lnav", "ap_lat_mode_clicked", 6, 10, 0},        {"hdgsel", "ap_lat_mode_clicked", 3, 15, 65725},
        {"hdghold", "ap_lat_mode_clicked", 2, 15, 65725}, {"loc", "ap_lat_mode_clicked", 7, 15, 0},
        {"vnav", "ap_vert_mode_clicked", 5, 15, 0},       {"flch", "ap_vert_mode_clicked", 4, 15, 0},
        {"vs", "ap_vert_mode_clicked", 2, 15, 0},         {"althold", "ap_vert_mode_clicked", 1, 15, 65726},
        {"app", "ap_vert_mode_clicked", 10, 15, 65724},   {"at", "at_mode_clicked", 1, 10, 65859},
        {"clbcon", "at_mode_clicked", 5, 10, 0},          {"apl", "TZ_MCP_L_AP_Button", 1, 15, 65580},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.button);
        host.NamedVar(row.variable) = 0;
        cfg.LnavDefAp = cfg.RealismMode = 0;
        EXPECT_TRUE(PressMcpButton(row.button));
        EXPECT_EQ(host.NamedVar(row.variable), row.value);
        EXPECT_EQ(time_base.tick_phase, row.tick_phase);
        EXPECT_TRUE(host.events.empty());
        cfg.LnavDefAp = cfg.RealismMode = 1;
        PressMcpButton(row.button);
        std::vector<std::pair<int, int>> sent;
        if (row.event != 0) sent.emplace_back(row.event, 0);
        EXPECT_EQ(host.events, sent);
        host.events.clear();
    }
    EXPECT_FALSE(PressMcpButton("spd"));
    EXPECT_FALSE(PressMcpButton(""));
}

TEST_F(McpTest, LnavPressedTwiceTakesItsRequestBack) {
    PressMcpButton("lnav");
    PressMcpButton("lnav");
    EXPECT_EQ(host.NamedVar("ap_lat_mode_clicked"), 0);
    EXPECT_EQ(lnav.lnav_engaged, 0);
    cfg.LnavDefAp = 1;  // the host's own autopilot is driven: no mode to wait for
    PressMcpButton("lnav");
    EXPECT_EQ(lnav.lnav_engaged, 1);
    PressMcpButton("lnav");
    EXPECT_EQ(lnav.lnav_engaged, 0);
}

TEST_F(McpTest, KnobsStopAtTheirLimits) {
    struct {
        const char* knob;
        double speed, heading, altitude, vertical_speed;  // as the windows stand
        int detents;
        std::vector<std::pair<int, int>> events;
    } const rows[] = {
        {"spd", 250, 0, 0, 0, 1, {{66037, 251}}},
        {"spd", 395, 0, 0, 0, 10, {{66037, 399}}},
        {"spd", 104, 0, 0, 0, -10, {{66037, 100}}},
        {"hdg", 0, 355, 0, 0, 10, {{66042, 5}}},
        {"hdg", 0, 0, 0, 0, -1, {{66042, 359}}},
        {"alt", 0, 0, 10000, 0, 1, {{66124, 10100}}},
        {"alt", 0, 0, 49500, 0, 10, {{66124, 50000}}},
        {"alt", 0, 0, 500, 0, -10, {{66124, 0}}},
        {"vswheel", 0, 0, 0, 500, 2, {{65894, 0}, {65894, 0}}},
        {"vswheel", 0, 0, 0, -7900, -1, {{65895, 0}}},
        {"vswheel", 0, 0, 0, 6000, 1, {}},
        {"vswheel", 0, 0, 0, -8000, -1, {}},
    };
    for (const auto& row : rows) {
        sim.ap_spdbug = row.speed;
        sim.ap_hdgbug = row.heading;
        sim.apalt = row.altitude;
        sim.ap_vsbug = row.vertical_speed;
        host.events.clear();
        EXPECT_TRUE(TurnMcpKnob(row.knob, row.detents));
        EXPECT_EQ(host.events, row.events) << row.knob << row.detents;
    }
    host.events.clear();
    sim.ap_spdbug = 250;
    for (int i = 0; i < 3; ++i) TurnMcpKnob("spd", 1);  // within one tick
    EXPECT_EQ(host.events.back(), std::pair(66037, 253));
    // LNAV under an engaged autopilot keeps the heading window
    autoflight.ap_master_l = 1;
    autoflight.ap_lat_mode = 6;
    host.events.clear();
    TurnMcpKnob("hdg", 1);
    EXPECT_TRUE(host.events.empty());
    EXPECT_FALSE(TurnMcpKnob("lnav", 1));
}

TEST_F(McpTest, ArmSwitchAndDisengageBar) {
    PressMcpButton("atarm");
    EXPECT_EQ(host.NamedVar("at_armed_left"), 1);
    EXPECT_EQ(host.NamedVar("at_armed_right"), 1);
    PressMcpButton("atarm");
    EXPECT_EQ(host.NamedVar("at_armed_left"), 0);
    cfg.RealismMode = cfg.LnavDefAp = 1;
    host.tokens[123] = 0;
    PressMcpButton("atarm");
    EXPECT_EQ(host.NamedVar("at_armed_left"), 0) << "it follows the host's";
    EXPECT_EQ(host.events, (std::vector<std::pair<int, int>>{{0x10144, 0}}));

    MoveDisengageBar(true);
    EXPECT_EQ(host.NamedVar("TZ_MCP_AP_DISENGAGE_Bar"), 1);
    EXPECT_EQ(host.NamedVar("ap_master_disconnect"), 1);
    EXPECT_EQ(cfg.PfcSwitch, 7);
    MoveDisengageBar(false);
    EXPECT_EQ(host.NamedVar("TZ_MCP_AP_DISENGAGE_Bar"), 0);
    EXPECT_EQ(host.NamedVar("TZ_AP_DISENGAGE_Switch_Right"), 1);
    cfg.DiscPFCOnAPDisc = 1;
    MoveDisengageBar(true);
    EXPECT_EQ(cfg.PfcSwitch, 4);
    EXPECT_EQ(host.NamedVar("TZ_OH_PFC_G_Switch"), 1);
}

}  // namespace
