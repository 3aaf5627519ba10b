#include "guidance/vnav.h"

#include "fmc/performance/step_point.h"
#include "fmc/route/delete_restrictions.h"
#include "guidance/approach_tuning.h"
#include "guidance/guidance_test.h"
#include "guidance/mcp.h"
#include "guidance/step_climb.h"
#include "guidance/vnav_speed.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/perf.h"
#include "state/predictions.h"
#include "state/requests.h"
#include "state/vnav.h"
#include "state/weights.h"

namespace {

// Two degrees a leg, 120 nm, east along the equator; the descent begins 30 nm before the third fix.
class Vnav : public GuidanceTest {
  protected:
    void SetUp() override {
        GuidanceTest::SetUp();
        FlyRoute({{"A", 0, 0}, {"B", 0, 2}, {"C", 0, 4}, {"D", 0, 6}, {"E", 0, 8}});
        for (int i = 1; i <= 4; ++i) {
            plan.active.legs[i].alt = i == 4 ? 3000 : i == 3 ? 18000 : 35000;
            plan.active.legs[i].ias_restr = 280;
        }
        plan.active.bod_pos = 4;
        perf.cruise_alt = perf.init_cruise_alt = 35000;
        perf.speeds.climb_ias = 290, perf.speeds.climb_mach = 0.83;
        perf.speeds.cruise_ias = 285, perf.speeds.cruise_mach = 0.84;
        perf.speeds.descent_ias = 280, perf.speeds.descent_mach = 0.82;
        vnav.toc_lon = 1, vnav.toc_stpos = 0;
        vnav.tod_lon = 3.5, vnav.tod_stpos = 1;
        vnav.tod_from_dest = 270;
        vnav.vnav_engaged = 1;
        sim.apalt = 20000;
        PlaceAt(0, 0.5, 90);
    }
    static bool IsTold(const char* title) {
        for (int i = 1; i <= cdu[0].CduMessageCount; ++i)
            if (cdu[0].CduMessages[i].title == title) return true;
        return false;
    }
};

TEST_F(Vnav, TopsArePassedInTheirOrder) {
    sim.ind_alt_ft = 34949;
    VnavUpdate();
    EXPECT_EQ(vnav.toc, 0);
    EXPECT_EQ(vnav.cross_at_nm, predictions.dist_to_toc);
    vnav.vnav_engaged = 0;
    sim.ind_alt_ft = 34950;
    VnavUpdate();
    EXPECT_EQ(vnav.toc, 1);  // with VNAV off, too
    EXPECT_EQ(requests.vnav_phase, 2);
    EXPECT_EQ(vnav.dist_from_tod_to_bod, 99);
    EXPECT_EQ(vnav.vnav_vert_dev, 0);
    vnav.vnav_engaged = 1;
    // The MCP altitude holds the aircraft up, told once from 4.5 nm before the top.
    plan.active.stpos = 2;
    plan.active.active_leg = {"B", 0, 2, "C", 0, 4, 0, 0};
    sim.apalt = 35000;
    PlaceAt(0, 3.5 - 4.6 / 60, 90);
    VnavUpdate();
    EXPECT_FALSE(IsTold("RESET MCP ALT"));
    PlaceAt(0, 3.5 - 4.4 / 60, 90);
    VnavUpdate();
    EXPECT_TRUE(IsTold("RESET MCP ALT"));
    EXPECT_EQ(vnav.tod, 0);
    PlaceAt(0, 3.5 - 1.4 / 60, 90);
    VnavUpdate();
    EXPECT_EQ(vnav.tod, 1);
    EXPECT_EQ(vnav.init_tod, 1);
    EXPECT_EQ(requests.vnav_phase, 3);
    EXPECT_EQ(lnav.last_fix_alt, 35000);
    EXPECT_EQ(vnav.vnav_lset_code, 1);
    EXPECT_EQ(vnav.vnav_ias, 280);
    EXPECT_NEAR(vnav.dist_from_tod_to_bod, 30 + 240, 0.01);
    EXPECT_NEAR(vnav.dist_from_bod, 31.4 + 240, 0.01);
    EXPECT_EQ(vnav.cross_at_elev, 3000);
    // Half way down to the fix the line stands at 35000 too: both ends are level.
    PlaceAt(0, 3.75, 90);
    lnav.wpt_dist = 15;
    sim.ind_alt_ft = 34000;
    VnavUpdate();
    EXPECT_NEAR(vnav.dist_past_tod, 15, 0.01);
    EXPECT_EQ(vnav.vnav_vert_dev, -1000);
    plan.active.legs[2].alt = 25000;
    VnavUpdate();
    EXPECT_NEAR(vnav.desc_grad_alt, 30000, 1e-6);
    EXPECT_EQ(vnav.vnav_vert_dev, 4000);
    EXPECT_NEAR(vnav.required_vs, 31000 / ((15 + 240) / 6.0), 0.1);
    plan.active.legs[2].alt = -40000;
    VnavUpdate();
    EXPECT_EQ(vnav.vnav_vert_dev, 9000);
}

TEST_F(Vnav, EveryRuleSetsItsSpeed) {
    struct Case {
        int code;
        int toc, tod, mode;
        double alt, vs, lon;
        int leg_speed;  // of the TO leg; 0 = none
        double target;
    };
    const Case kCases[] = {
        {6, 1, 1, 1, 10400, -1500, 1.9, 220, 240},  // levels off within 15 nm, above the transition
        {7, 1, 1, 1, 9500, -1500, 1.9, 220, 220},
        {8, 1, 1, 1, 9500, -1500, 0.5, 0, 240},
        {8, 1, 1, 1, 10800, -1500, 0.5, 0, 240},  // the transition is near
        {9, 1, 1, 2, 30000, -1500, 0.5, 0, 0.82},
        {10, 1, 1, 1, 30000, -1500, 0.5, 0, 280},
        {11, 0, 0, 1, 5000, 2000, 0.5, 270, 250},
        {12, 0, 0, 1, 12000, 2000, 0.5, 270, 290},  // the top comes before the fix
        {12, 0, 0, 1, 12000, 2000, 1.8, 270, 270},
        {16, 0, 0, 1, 9974, 2000, 0.5, 0, 250},
        {18, 0, 0, 1, 9976, 2000, 0.5, 0, 290},  // 25 ft below the transition it ends
        {17, 0, 0, 2, 30000, 2000, 0.5, 0, 0.83},
        {20, 1, 0, 2, 34800, -101, 0.5, 0, 280},
        {21, 1, 0, 2, 35000, 0, 0.5, 0, 0.84},
    };
    for (const Case& row : kCases) {
        vnav.toc = row.toc, vnav.tod = row.tod, vnav.init_tod = 0;
        vnav.vnav_spd_mode = row.mode;
        vnav.vnav_spd_pending = vnav.vnav_lset_code = 0;
        vnav.cross_at_elev = row.leg_speed == 220 ? 10000 : row.tod == 1 ? 3000 : 35000;
        if (row.code == 7) vnav.cross_at_elev = 9000;
        vnav.cross_at_nm = 6;
        cfg.DescTransAltRest = 10000;
        perf.speeds.descent_ias = 280;
        sim.ind_alt_ft = row.alt;
        sim.vs_fpm = row.vs;
        FlightPlanLeg& to = plan.active.legs[1];
        to.restr_code = row.leg_speed > 0 ? kSpeedRestr : kFree;
        to.ias_restr = row.leg_speed > 0 ? row.leg_speed : 280;
        PlaceAt(0, row.lon, 90);
        if (row.code == 6) cfg.DescTransAltRest = 10300;
        if (row.code == 6) vnav.cross_at_elev = 10350;
        VnavSpeedStep();
        EXPECT_EQ(vnav.vnav_lset_code, row.code) << row.alt << " " << row.mode;
        EXPECT_NEAR(IsTargetMach() ? vnav.vnav_mach : vnav.vnav_ias, row.target, 1e-9) << row.code;
    }
    EXPECT_EQ(vnav.vnav_spd_pending, 1);
    for (const auto& [vs, code] :
         {std::pair{-101, 20}, {0, 21}}) {  // also where the target stands, 90 nm away
        sim.vs_fpm = vs;
        VnavSpeedStep();
        EXPECT_EQ(vnav.vnav_lset_code, code);
    }
    perf.speeds.cruise_ias = 285;  // the leg's 220 kt have lowered it
    plan.mod.selected.CruiseSelected = 1;
    vnav.vnav_spd_mode = 2;
    VnavSpeedStep();
    EXPECT_EQ(vnav.vnav_lset_code, 22);
    EXPECT_EQ(vnav.vnav_ias, 285);
    // Near the bottom of a segment with a speed, in cruise.
    plan.active.bod_pos = 1;
    plan.active.legs[1].restr_code = kSpeedRestr;
    plan.active.legs[1].ias_restr = 230;
    PlaceAt(0, 1.7, 90);
    VnavSpeedStep();
    EXPECT_EQ(vnav.vnav_lset_code, 19);
    EXPECT_EQ(vnav.vnav_ias, 230);
    // In the climb: to a level-off with a speed behind the TO fix, and below a restriction.
    plan.active.legs[1].restr_code = kFree;
    plan.active.legs[2].restr_code = kSpeedRestr;
    plan.active.legs[2].ias_restr = 260;
    plan.active.bod_pos = 2;
    vnav.toc = 0, vnav.toc_stpos = 2;
    cfg.ClbAltRest = 13000, cfg.ClbSpdRest = 240;
    const struct {
        double alt;
        int bottom, code;
        double target;
    } kClimb[] = {{12900, 2, 13, 240}, {12980, 2, 14, 260}, {12900, 4, 15, 240}};
    for (const auto& row : kClimb) {
        sim.ind_alt_ft = row.alt;
        plan.active.bod_pos = row.bottom;
        vnav.vnav_spd_pending = 0;
        VnavSpeedStep();
        EXPECT_EQ(vnav.vnav_lset_code, row.code);
        EXPECT_EQ(vnav.vnav_ias, row.target) << row.code;
    }
}

TEST_F(Vnav, LimitsOnTheWayAndDragAreAskedForOnce) {
    vnav.toc = vnav.tod = 1;
    vnav.vnav_spd_pending = 1;
    vnav.cross_at_elev = 3000;
    sim.ap_spdbug = 280;
    sim.ind_alt_ft = 10450;
    sim.vs_fpm = -1000;
    LimitSpeedOnTheWay();
    EXPECT_EQ(vnav.vnav_lset_code, 2);
    EXPECT_EQ(vnav.vnav_ias, 240);
    vnav.vnav_lset_code = 0;
    LimitSpeedOnTheWay();
    EXPECT_EQ(vnav.vnav_lset_code, 0);
    // 260 kt where 240 are wanted, 2.7 nm before the level: drag, and not again for a minute.
    sim.ias_kt = autoflight.spd_lookahead = 260;
    sim.abs_time = 100;
    vnav.drag_msg_changed_at = 41;
    PlaceAt(0, 0.5, 90);
    VnavSpeedStep();
    EXPECT_FALSE(IsTold("DRAG REQUIRED"));
    sim.abs_time = 101;
    VnavSpeedStep();
    EXPECT_TRUE(IsTold("DRAG REQUIRED"));
    sim.ias_kt = 244;
    VnavSpeedStep();
    EXPECT_FALSE(IsTold("DRAG REQUIRED"));
    sim.ias_kt = 260;
    sim.abs_time = 160;
    VnavSpeedStep();
    EXPECT_FALSE(IsTold("DRAG REQUIRED"));
    sim.abs_time = 161;
    VnavSpeedStep();
    EXPECT_TRUE(IsTold("DRAG REQUIRED"));
    // A climb through the transition takes its limit back.
    vnav.toc = vnav.tod = 0;
    vnav.clb_limit_active = 1;
    sim.ind_alt_ft = 9980;
    LimitSpeedOnTheWay();
    EXPECT_EQ(vnav.vnav_lset_code, 5);
    EXPECT_EQ(vnav.vnav_ias, 290);
    plan.active.legs[1].restr_code = kSpeedRestr;
    plan.active.legs[1].ias_restr = 270;
    vnav.toc_lon = 3;
    vnav.clb_limit_active = 1;
    LimitSpeedOnTheWay();
    EXPECT_EQ(vnav.vnav_lset_code, 4);
    EXPECT_EQ(vnav.vnav_ias, 270);
    // The restriction of the descent stands beside its transition.
    vnav.toc = vnav.tod = 1;
    cfg.DesAltRest = 15000, cfg.DesSpdRest = 230;
    sim.ind_alt_ft = 15400;
    LimitSpeedOnTheWay();
    EXPECT_EQ(vnav.vnav_lset_code, 3);
    EXPECT_EQ(vnav.vnav_ias, 230);
}

TEST_F(Vnav, TheAltitudeKnobTakesTheNextConstraintAwayOrRaisesTheCruise) {
    const auto constrain = [](int leg, int code) {
        for (FlightPlanLeg* of : {&plan.active.legs[leg], &plan.mod.legs[leg]}) {
            of->restr_code = code;
            of->alt_restr = 12000;
        }
    };
    constrain(1, kAltitudeRestr | kSpeedRestr);
    constrain(2, kAltitudeRestr);
    constrain(3, kAltitudeRestr);
    vnav.toc_lon = 3;  // on the second leg
    PushAltitudeKnob();
    EXPECT_EQ(plan.active.legs[1].restr_code, kSpeedRestr);
    EXPECT_EQ(plan.active.legs[1].alt_restr, -999);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);  // executed at once
    vnav.toc_lon = 3;
    PushAltitudeKnob();
    EXPECT_EQ(plan.active.legs[2].restr_code, kAltitudeRestr);  // the top lies before it
    vnav.toc = 1;
    sim.apalt = 34000;
    PushAltitudeKnob();
    EXPECT_EQ(perf.cruise_alt, 35000);
    sim.apalt = 37000;
    PushAltitudeKnob();
    EXPECT_EQ(perf.cruise_alt, 37000);
    vnav.tod = 1;
    PushAltitudeKnob();
    EXPECT_EQ(plan.active.legs[2].restr_code, kFree);
    EXPECT_EQ(plan.active.legs[3].restr_code, kAltitudeRestr);
    DeleteDescentRestrictions(false);
    EXPECT_EQ(plan.mod.legs[3].restr_code, kFree);
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
}

TEST_F(Vnav, AStepComesDueAtItsPointAndIsToldUntilFlown) {
    vnav.toc = 1;
    plan.active.stpos = 2;
    plan.active.legs[3].step_alt = 39000;
    sim.true_track_deg = 90;
    PlaceAt(0, 3, 90);
    ComputeStepPoint();
    EXPECT_EQ(perf.fms_step_to_alt, 39000);
    EXPECT_NEAR(vnav.dist_to_step, 180, 0.01);
    PlaceAt(0, 6 - 1.6 / 60, 90);
    WatchStepPoint();
    EXPECT_EQ(vnav.step_due, 0);
    PlaceAt(0, 6 - 1.4 / 60, 90);
    WatchStepPoint();
    EXPECT_EQ(vnav.step_due, 1);
    sim.ind_alt_ft = 35000;
    for (int tick = 0; tick < 400; ++tick) CountStepClimb();
    EXPECT_EQ(vnav.step_climb_timer, 300);
    sim.ind_alt_ft = 35251;
    CountStepClimb();
    EXPECT_EQ(vnav.step_climb_timer, 0);
    // By weight: 35500 ft want at most 485017 lb by the table, 400 lb from here; the limit by weight lies
    // higher.
    plan.active.legs[3].step_alt = 0;
    perf.fms_step_to_alt = 39000;
    perf.cruise_alt = 34800;
    weights.gross_weight = 485410;
    predictions.crz_burn_per_nm = 4;
    predictions.dist_to_tod = 300;
    PlaceAt(0, 3, 90);
    ComputeStepPoint();
    EXPECT_NEAR(vnav.dist_to_step, 100, 0.01);
    EXPECT_NEAR(vnav.step_lon, 3 + 100 / 60.0, 1e-4);
}

TEST_F(Vnav, TheApproachIsTunedOnceAndTriedTenTimes) {
    airports.dest_airport.runway_cnt = 1;
    RunwayData& runway = airports.dest_airport.runways[1];
    runway.ident = "16L";
    runway.ils_freq = "110.3";
    runway.course = 163.6;
    plan.mod.procedures.arr_appr = "ILS";
    plan.mod.procedures.arr_appr_rwy = "16L";
    PlaceAt(0, 8 - 41 / 60.0, 90);
    plan.active.stpos = 4;
    VnavUpdate();
    EXPECT_EQ(nav.autotuned, 0);
    PlaceAt(0, 8 - 39 / 60.0, 90);
    host.events.clear();
    VnavUpdate();
    ASSERT_EQ(host.events.size(), 2U);
    EXPECT_EQ(host.events[0], (std::pair{0x100ac, 0x11030}));
    EXPECT_EQ(host.events[1], (std::pair{0x100b4, 164}));
    for (int quarter = 0; quarter < 20; ++quarter) CheckApproachTuning();
    EXPECT_EQ(host.events.size(), 2U + 9);  // the tenth try is the last
    plan.mod.procedures.arr_appr_rwy = "16R";
    VnavUpdate();
    EXPECT_EQ(nav.autotuned, 0);  // no such runway
}

}  // namespace
