#include "guidance/holds.h"

#include <cmath>

#include "fmc/legs/holds.h"
#include "guidance/guidance_test.h"
#include "state/autoflight.h"

namespace {

/// A hold at BRAVO: inbound east, right turns, 4 nm legs (so that the pattern is 6 nm long).
class HoldsTest : public GuidanceTest {
  protected:
    void SetUp() override {
        GuidanceTest::SetUp();
        FlyRoute({{"ALPHA", 0, 0}, {"BRAVO", 0, 0.5}, {"CHARL", 0, 1}, {"DELTA", 0, 1.5}});
        plan.hold_cnt = 1;
        hold.ident = "BRAVO";
        hold.leg = 1;
        hold.inbound_crs = 90;
        hold.use_time = 2;
        hold.leg_dist = 4;
        hold.points[0].lon = 0.5;
        plan.active.legs[1].hold_pos = 1;
        lnav.lnav_engaged = 1;
    }
    /// Into the pattern, past the fix.
    void Enter() {
        PlaceAt(0, 0.497, 90);
        RunASecond();
    }
    HoldRecord& hold = plan.HoldList[1];
};

TEST_F(HoldsTest, ThePatternHangsOnTheFix) {
    PlaceAt(0, 0.1, 90);
    lnav.lnav_engaged = 0;
    RunASecond();
    EXPECT_EQ(hold.points[1].name, "") << "only stored with LNAV engaged";
    lnav.lnav_engaged = 1;
    struct {
        int right_turn;
        const char* name;
        double lat_nm, lon_nm, course;  // from the fix
    } const points[] = {
        {1, "Xwind", 0, 1.2, 180},   {1, "Dwind", -3.6, 1.2, 270}, {1, "Base", -3.6, -4.8, 0},
        {1, "Final", 0, -4.8, 90},   {2, "Xwind", 0, 1.2, 0},      {2, "Dwind", 3.6, 1.2, 270},
        {2, "Base", 3.6, -4.8, 180}, {2, "Final", 0, -4.8, 90},
    };
    int index = 0;
    for (const auto& p : points) {
        hold.right_turn = p.right_turn;
        RunASecond();
        const HoldPoint& point = hold.points[static_cast<std::size_t>(index++ % 4 + 1)];
        EXPECT_EQ(point.name, p.name);
        EXPECT_NEAR(point.lat * 60, p.lat_nm, 0.001) << p.name;
        EXPECT_NEAR((point.lon - 0.5) * 60, p.lon_nm, 0.001) << p.name;
        EXPECT_NEAR(point.course, p.course, 1e-6) << p.name;
    }
    hold.use_time = 1;  // one and a half minutes at 240 kt
    hold.leg_time = 1.5;
    lnav.hold_speed = 240;
    RunASecond();
    EXPECT_NEAR(hold.leg_dist, 6, 1e-9);
}

TEST_F(HoldsTest, TheVariationIsTakenNearTheFix) {
    hold.magvar_pending = 1;
    sim.mgvar = 14.6;
    PlaceAt(0, 0.16, 90);  // 20.4 nm
    RunASecond();
    EXPECT_EQ(hold.magvar, 0);
    PlaceAt(0, 0.17, 90);
    RunASecond();
    EXPECT_EQ(hold.magvar, 15);
    EXPECT_EQ(hold.magvar_pending, 0);
}

TEST_F(HoldsTest, IsEnteredAtTheFixAndFlownRound) {
    lnav.hold_point = lnav.hold_prev_point = 1000;  // set to what is no point
    RunASecond();
    lnav.hold_point = lnav.holding = 0;
    PlaceAt(0, 0.47, 90);  // 1.8 nm: a quarter of the pattern's 6 nm is 1.5
    RunASecond();
    EXPECT_EQ(lnav.holding, 0);
    PlaceAt(0, 0.476, 90);
    Tick();
    EXPECT_EQ(lnav.holding, 1);
    EXPECT_EQ(lnav.hold_point, 1);
    EXPECT_EQ(lnav.hold_prev_point, 4);
    EXPECT_NEAR(lnav.hold_hdg, 90, 0.001);
    struct {
        const char* where;
        double lat_nm, lon_nm, heading;
        int point;
        double steering;
    } const places[] = {
        {"near Xwind", 0, 0, 90, 2, 123.9},
        {"across, short of Dwind", -2, 1.2, 180, 2, 180},
        {"near Dwind", -2.2, 1.2, 180, 3, 210.9},
        {"downwind, half a mile out", -4.1, -1, 270, 3, 297.3},
        {"beyond Base", -3.6, -6.5, 270, 4, 70.0},
        {"near Final", -1, -4.8, 0, 1, 42.5},
        {"blown far away: the next point", 0, -40, 90, 2, 48.3},
    };
    for (const auto& place : places) {
        SCOPED_TRACE(place.where);
        PlaceAt(place.lat_nm / 60, 0.5 + place.lon_nm / 60, place.heading);
        Tick();
        EXPECT_EQ(lnav.hold_point, place.point);
        EXPECT_EQ(lnav.hold_prev_point, place.point == 1 ? 4 : place.point - 1);
        EXPECT_NEAR(lnav.hold_hdg, place.steering, 0.1);
        EXPECT_EQ(plan.active.stpos, 1);
        EXPECT_GT(lnav.wpt_dist, -0.5) << "the distance to the fix is kept, nothing asks to sequence";
    }
}

TEST_F(HoldsTest, SteersByTheHoldsOwnVariation) {
    hold.magvar = 10;
    hold.inbound_crs = 80;
    PlaceAt(0, 0.476, 90);
    Tick();
    EXPECT_NEAR(lnav.hold_hdg, 80, 0.01);
}

TEST_F(HoldsTest, IsLeftOnceTheExitIsExecuted) {
    Enter();
    PlaceAt(-0.06, 0.45, 270);  // downwind
    RunASecond();
    ASSERT_EQ(lnav.holding, 1);
    lnav.hold_exit = 3;
    ExitHold();
    EXPECT_EQ(plan.fms_fpln_active, 4);
    RunASecond();
    EXPECT_EQ(lnav.holding, 1) << "it isn't executed yet";
    EXPECT_EQ(plan.active.stpos, 1);
    plan.fms_fpln_active = 3;
    RunASecond();
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(lnav.hold_point, 0);
    EXPECT_EQ(plan.hold_cnt, 0);
    EXPECT_EQ(plan.active.stpos, 2) << "on by one leg";
    EXPECT_EQ(plan.active.active_leg.from, "BRAVO");
    EXPECT_EQ(plan.active.active_leg.to, "CHARL");
    EXPECT_NEAR(lnav.wpt_dist, std::hypot(33, 3.6), 0.01);
}

TEST_F(HoldsTest, AtTheLastFixTheExitFliesThereOnceMore) {
    plan.active.leg_cnt = 1;
    Enter();
    lnav.hold_exit = 3;
    PlaceAt(-0.06, 0.45, 270);
    RunASecond();
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_EQ(lnav.plan_finished, 0);
}

TEST_F(HoldsTest, AHoldBehindTheAircraftIsRemovedUnlessItIsPending) {
    plan.active.stpos = 2;
    plan.active.active_leg = {"BRAVO", 0, 0.5, "CHARL", 0, 1, 0, 0};
    hold.pending_leg = 1;
    PlaceAt(0, 0.6, 90);
    RunASecond();
    EXPECT_EQ(plan.hold_cnt, 1);
    EXPECT_EQ(lnav.holding, 0);
    hold.pending_leg = 0;
    RunASecond();
    EXPECT_EQ(plan.hold_cnt, 0);
}

TEST_F(HoldsTest, WhatAModificationHasTakenOutIsFlownUntilExec) {
    plan.fms_fpln_active = 4;
    RenumberHolds();  // no leg of the working copy bears it
    EXPECT_EQ(plan.hold_cnt, 0);
    Enter();
    EXPECT_EQ(lnav.holding, 1);
    EXPECT_EQ(hold.points[1].name, "Xwind");
    RemoveLostHolds();
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(lnav.hold_exit, 4);
    EXPECT_EQ(plan.active.legs[1].hold_pos, 0);
}

TEST_F(HoldsTest, WhenTheHoldIsRemovedThePlanGoesOn) {
    Enter();
    ASSERT_EQ(lnav.holding, 1);
    plan.hold_cnt = 0;
    plan.active.legs[1].hold_pos = 0;
    RunASecond();
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(plan.active.stpos, 2);
}

TEST_F(HoldsTest, OneMoreHoldIsAskedForBelowFive) {
    NextHold(2);
    EXPECT_EQ(lnav.further_hold, 2);
    EXPECT_EQ(lnav.hold_select_due, 2);
    lnav.hold_select_due = 0;
    plan.hold_cnt = 5;
    NextHold(2);
    EXPECT_EQ(lnav.hold_select_due, 0);
}

}  // namespace
