#include <gtest/gtest.h>

#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/route/endpoints.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "fmc/route_model.h"
#include "navdata/parse_entry.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/vnav.h"
#include "state/weights.h"

namespace {

class ExecuteRouteTest : public RouteModel {};

TEST_F(ExecuteRouteTest, ExecStepsOverADiscontinuityAndKeepsThePlanInBounds) {
    plan.mod.entries.cruise_alt = 35000;
    EnterAndExecute("ORIG AAA CCC DEST");
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_EQ(plan.pending_stpos, 0);
    DeleteLegWithDiscontinuity(1, false, kCaptain);
    OpenModification();
    plan.mod.legs[2].step_alt = 39000;
    ExecuteRoute();
    EXPECT_EQ(ActiveLegs(), "ORIG DISCO CCC DEST");
    EXPECT_EQ(plan.active.stpos, 2);
    EXPECT_EQ(plan.mod.stpos, 2);
    EXPECT_EQ(plan.active.active_leg.from, "ORIG");
    EXPECT_EQ(plan.active.active_leg.to, "CCC");
    EXPECT_NEAR(lnav.leg_len, 180, 0.01);  // 39 N to 42 N
    EXPECT_EQ(perf.cruise_alt, 39000);
}

TEST_F(ExecuteRouteTest, ADirectToStartsPastTheTurn) {
    EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
    sim.on_ground = 0;
    sim.plane_lat = 40.5;
    sim.ground_speed_kt = 360;
    const auto direct_to = [](double heading) {
        EraseModification();
        sim.true_hdg = heading;
        ConnectLegs(plan.active.stpos, 3, kCaptain);
    };
    direct_to(8);
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
    EXPECT_EQ(ModLegs(), "ORIG CCC EEE DEST");
    EXPECT_EQ(plan.pending_stpos, 1);
    EXPECT_EQ(plan.mod.active_leg.from, "DIRECT");
    EXPECT_EQ(plan.mod.active_leg.to, "CCC");
    EXPECT_EQ(plan.active.active_leg.to, "AAA");
    ExecuteRoute();
    EXPECT_EQ(plan.active.active_leg.from, "DIRECT");
    EXPECT_EQ(plan.active.active_leg.to, "CCC");
    EXPECT_EQ(plan.active.active_leg.from_lat, 40.5);
    EXPECT_EQ(plan.active.active_leg.from_lon, 10);
    EXPECT_EQ(plan.active.active_leg.direct_flag, 1);
    EXPECT_EQ(plan.active.stpos, 1);
    // A later modification doesn't move its start.
    sim.plane_lat = 41;
    InsertEntry(2, "DDFIX", true);
    ExecuteRoute();
    EXPECT_EQ(plan.active.active_leg.from, "DIRECT");
    EXPECT_EQ(plan.active.active_leg.from_lat, 40.5);

    // 90 degrees to turn left at 360 kt: 2.5 nm on 045, which is 1.768 nm north and east.
    EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
    sim.plane_lat = 40.5;
    direct_to(90);
    ExecuteRoute();
    EXPECT_NEAR(plan.active.active_leg.from_lat, 40.5 + 1.768 / 60, 1e-4);
    EXPECT_NEAR(plan.active.active_leg.from_lon, 10 + 1.768 / 60 / 0.7602, 1e-4);
    // Slow, to the right: 1.25 nm on 315, of 270 to be turned to 360.
    EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
    sim.ground_speed_kt = 149;
    direct_to(270);
    ExecuteRoute();
    EXPECT_NEAR(plan.active.active_leg.from_lat, 40.5 + 0.8839 / 60, 1e-4);
    EXPECT_NEAR(plan.active.active_leg.from_lon, 10 - 0.8839 / 60 / 0.7602, 1e-4);
}

TEST_F(ExecuteRouteTest, AModificationStartsFromTheLegBeingFlown) {
    const struct {
        std::vector<const char*> operations;
        const char* to;  // the TO leg after EXEC
        int stpos;
    } kCases[] = {
        {{"AdvanceRouteState"}, "CCC", 3},
        {{"DeleteLegWithDiscontinuity 3 0 1", "AdvanceRouteState"}, "EEE", 4},
        {{"InsertFixAt 1 1 1", "AdvanceRouteState"}, "CCC", 4},
        {{"InsertFixAt 3 1 1"}, "LONER", 3},
        {{"ConnectLegs 1 3 1"}, "CCC", 2},
        {{"ConnectLegs 3 4 1"}, "EEE", 1},
        {{"InsertFixAt 1 1 1", "ConnectLegs 4 5 1"}, "EEE", 1},
        {{"ConnectLegs 1 3 1", "RefreshLegsForModification"}, "CCC", 3},
        {{"ConnectLegs 3 4 1", "RefreshLegsForModification"}, "CCC", 3},
    };
    for (const auto& test : kCases) {
        EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
        ParseEntry("LONER");
        plan.active.stpos = 3;  // the working copy has yet to hear of it
        for (const char* operation : test.operations) Op(operation);
        ExecuteRoute();
        EXPECT_EQ(plan.active.stpos, test.stpos) << test.operations[0];
        EXPECT_EQ(plan.active.active_leg.to, test.to) << test.operations[0];
        EXPECT_EQ(plan.mod.stpos, test.stpos) << test.operations[0];
    }
}

TEST_F(ExecuteRouteTest, TheLegBeingFlownKeepsItsStart) {
    const struct {
        const char* operation;
        const char* to;
    } kCases[] = {
        {"RebuildRouteRows", "CCC"},
        {"DeleteLegWithDiscontinuity 2 0 1", "CCC"},
        {"DeleteLegWithDiscontinuity 2 1 1", "CCC"},
        {"DeleteLegWithDiscontinuity 3 1 1", "EEE"},
        {"InsertFixAt 3 1 1", "LONER"},
    };
    for (const auto& test : kCases) {
        EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
        ParseEntry("LONER");
        plan.active.stpos = 3;
        ExecuteRoute();
        const double from_lat = plan.active.legs[2].lat;
        Op(test.operation);
        ExecuteRoute();
        EXPECT_EQ(plan.active.active_leg.from, "BBFIX") << test.operation;
        EXPECT_EQ(plan.active.active_leg.to, test.to) << test.operation;
        EXPECT_EQ(plan.active.active_leg.from_lat, from_lat) << test.operation;
    }
}

TEST_F(ExecuteRouteTest, TheBottomOfDescentMovesWithItsLeg) {
    const struct {
        int bottom;
        const char* operation;
        int moved;
    } kCases[] = {
        {6, "ConnectLegs 1 4 1", 3},  // direct to: three legs go
        {4, "ConnectLegs 1 4 1", 1},
        {2, "ConnectLegs 1 4 1", 1},  // itself removed: the leg that takes its place
        {5, "ConnectLegs 2 4 1", 4},
        {2, "ConnectLegs 2 4 1", 2},
        {5, "RemoveViaRow 2", 3},  // two legs of the airway go
        {5, "RemoveToRow 2", 3},   // three go, a "DISCO" comes
        {5, "InsertFixAt 3 1 0", 7},
        {5, "InsertFixAt 5 1 1", 6},
        {2, "InsertFixAt 5 1 1", 2},
    };
    for (const auto& test : kCases) {
        EnterAndExecute("ORIG AAA Q1 CCC EEE LONER DEST");
        ASSERT_EQ(ActiveLegs(), "ORIG AAA AAFIX BBFIX CCC EEE LONER DEST");
        ParseEntry("EASTX");
        plan.mod.bod_pos = test.bottom;
        Op(test.operation);
        EXPECT_EQ(plan.mod.bod_pos, test.moved) << test.bottom << " " << test.operation;
    }
}

TEST_F(ExecuteRouteTest, ADirectToMayAimAtTheActiveLegItself) {
    EnterAndExecute("ORIG AAA BBFIX CCC DEST");
    plan.active.stpos = plan.mod.stpos = 2;
    ConnectLegs(3, 3, kCaptain);  // not the active leg
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    ConnectLegs(2, 2, kCaptain);
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
    EXPECT_EQ(ModLegs(), "ORIG BBFIX CCC DEST");
    EXPECT_EQ(plan.pending_stpos, 1);
    EXPECT_EQ(plan.mod.active_leg.from, "DIRECT");
    EXPECT_EQ(plan.mod.active_leg.to, "BBFIX");
    EXPECT_EQ(plan.mod.active_leg.from_lat, 39);
}

TEST_F(ExecuteRouteTest, ExecTakesEditsThatNobodyAnnounced) {
    EnterAndExecute("ORIG AAA BBFIX CCC DEST");
    DeleteLegWithDiscontinuity(2, true, kCaptain);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    std::string error;
    EXPECT_EQ(ExecuteEnteredRoute(error), 1);
    EXPECT_EQ(ActiveLegs(), "ORIG AAA CCC DEST");
}

TEST_F(ExecuteRouteTest, EraseBringsEverythingBack) {
    EnterAndExecute("ORIG/16 AAA BBFIX CCC DEST/09");
    MarkHold(2, false, 1);
    OpenModification();
    ExecuteRoute();
    ASSERT_EQ(plan.hold_cnt, 1);
    const std::string rows = Rows();
    ASSERT_EQ(EnterDestination("ALTN"), 1);
    SelectOriginRunway("34");
    RemoveToRow(2);
    MarkHold(1, false, 0);
    plan.mod.entries.speeds.climb_ias = 300;
    plan.mod.entries.cruise_alt = 39000;
    plan.mod.selected.ClimbSelected = 1;
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO CCC ALTN");
    EXPECT_EQ(plan.active.ends.dest, "DEST");
    EXPECT_EQ(plan.mod.ends.dest, "ALTN");
    EraseModification();
    EXPECT_EQ(ModLegs(), "ORIG AAA BBFIX CCC DEST");
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(plan.mod.ends.dest, "DEST");
    EXPECT_EQ(plan.mod.ends.dep_runway, "16");
    EXPECT_EQ(plan.mod.procedures.arr_appr_rwy, "09");
    ASSERT_EQ(plan.hold_cnt, 1);
    EXPECT_EQ(plan.HoldList[1].ident, "BBFIX");
    EXPECT_EQ(plan.mod.legs[2].hold_pos, 1);
    EXPECT_EQ(plan.mod.entries.speeds.climb_ias, 0);
    EXPECT_EQ(plan.mod.entries.cruise_alt, 0);
    EXPECT_EQ(plan.mod.selected.ClimbSelected, 0);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
}

TEST_F(ExecuteRouteTest, SequencingMovesAPendingModificationOn) {
    EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
    const auto sequence_to = [](int leg) {
        plan.active.stpos = leg;
        FollowSequencing();
    };
    sequence_to(2);
    EXPECT_EQ(plan.mod.stpos, 2);
    // The next leg still stands, one place further back.
    InsertEntry(3, "LONER", true);
    EXPECT_EQ(plan.pending_stpos, 2);
    sequence_to(3);
    EXPECT_EQ(plan.pending_stpos, 4);
    ExecuteRoute();
    EXPECT_EQ(plan.active.active_leg.to, "CCC");
    // The leg flown to has been taken out: the passed one is left behind all the same.
    ConnectLegs(3, 4, kCaptain);
    DeleteLegWithDiscontinuity(5, false, kCaptain);
    OpenModification();
    EXPECT_EQ(ModLegs(), "ORIG AAA BBFIX LONER CCC DISCO DEST");
    sequence_to(5);
    ExecuteRoute();
    EXPECT_EQ(plan.active.active_leg.to, "DEST");
}

TEST_F(ExecuteRouteTest, SpeedsAndLevelsFollowAtExec) {
    Enter("ORIG AAA DEST");
    perf.speeds.climb_ias = perf.speeds.cruise_ias = perf.speeds.descent_ias = 280;
    plan.mod.selected.CruiseMachSelected = 1;
    perf.speeds.cruise_mach = 0.81;
    plan.mod.entries.cruise_alt = 35000;
    plan.mod.entries.ActiveStepSize = -1;
    weights.gross_weight = 400000;
    perf.cruise_alt = 12000;  // of the flight before
    std::string error;
    ExecuteEnteredRoute(error);
    // 280 kt at the 35000 ft that this EXEC brings: 218.808 K, speed of sound 576.42 kt, and 1.63 x 280 of
    // it.
    EXPECT_NEAR(perf.speeds.climb_mach, 0.7918, 1e-4);
    EXPECT_EQ(perf.speeds.cruise_mach, 0.81);
    EXPECT_EQ(perf.cruise_alt, 35000);
    EXPECT_EQ(perf.init_cruise_alt, 35000);
    EXPECT_EQ(perf.fms_step_to_alt, 39000);
    EXPECT_EQ(vnav.cross_at_elev, 35000);
    plan.mod.entries.ActiveCostIndex = 100;
    plan.mod.entries.ActiveStepSize = 7000;
    AdvanceRouteState();
    ExecuteRoute();
    EXPECT_EQ(perf.cost_index, 100);
    EXPECT_EQ(perf.speeds.climb_ias, 321);     // economy at 400000 lb
    EXPECT_EQ(perf.speeds.climb_mach, 0.846);  // the index's row
    EXPECT_EQ(perf.speeds.cruise_ias, 324);
    EXPECT_EQ(plan.mod.selected.CruiseMachSelected, 0);
    EXPECT_EQ(perf.fms_step_to_alt, 0);  // 42000 is above the maximum of 41800
    EXPECT_NEAR(predictions.perf_factor, 10 * 0.0071 - 0.03, 1e-9);
    plan.mod.selected.LrcSelected = 1;
    AdvanceRouteState();
    ExecuteRoute();
    EXPECT_NEAR(perf.speeds.cruise_mach, 0.815, 1e-9);  // long range at 400000 lb and 35000 ft
}

TEST_F(ExecuteRouteTest, AMachThatNobodyGivesFollowsFromItsSpeed) {
    Enter("ORIG AAA DEST");
    perf.cost_index = 35;  // no row of the table
    plan.mod.entries.cruise_alt = 35000;
    weights.gross_weight = 400000;
    cfg.DescentMach = 0.8;
    std::string error;
    ExecuteEnteredRoute(error);
    EXPECT_EQ(perf.speeds.climb_ias, 311);
    EXPECT_NEAR(perf.speeds.climb_mach, 311 / 280.0 * 0.7918, 1e-4);
    EXPECT_EQ(perf.speeds.descent_mach, 0.8);
}

TEST(StepToAltitude, TakesTheNextLevelOfItsKind) {
    const struct {
        double cruise;
        int size;
        double entered, step_to;
    } kCases[] = {
        {35000, 0, 0, 0},      {35000, 0, 37000, 37000}, {35000, -1, 0, 39000},   {39000, -2, 0, 41000},
        {40000, -2, 0, 43000}, {41000, -2, 0, 45000},    {41001, -2, 0, 0},       {43000, -2, 0, 47000},
        {49000, -2, 0, 53000}, {40999, -2, 0, 42999},    {33000, 3000, 0, 36000},
    };
    for (const auto& test : kCases)
        EXPECT_EQ(StepToAltitude(test.cruise, test.size, test.entered), test.step_to)
            << test.cruise << " " << test.size;
}

TEST_F(ExecuteRouteTest, ANewOriginStartsANewRoute) {
    EnterAndExecute("ORIG/34 AAA CCC DEST");
    MarkHold(1, false, 0);
    EXPECT_EQ(EnterOrigin("NONE"), 0);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    EXPECT_EQ(EnterOrigin("DEST"), 1);
    EXPECT_EQ(plan.fms_fpln_active, kRouteNone);
    EXPECT_EQ(plan.active.stpos, kNoPlan);
    EXPECT_EQ(plan.hold_cnt, 0);
    EXPECT_EQ(plan.active.leg_cnt, 1);
    EXPECT_EQ(plan.active.legs[0].ident, "DEST");
    EXPECT_EQ(plan.active.ends.dep_runway, kNotSelected);
    std::string error;
    EXPECT_EQ(ExecuteEnteredRoute(error), 0);
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(EnterDestination("ORIG"), 1);
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_EQ(ExecuteEnteredRoute(error), 1);
    EXPECT_EQ(ActiveLegs(), "DEST ORIG");
    ClearFlightPlan();
    EXPECT_EQ(plan.active.stpos, kNoPlan);
    EXPECT_EQ(plan.active.leg_cnt, 0);
    EXPECT_EQ(predictions.clb_burn, 33000);
    EXPECT_EQ(predictions.crz_burn, 8500);
    EXPECT_EQ(predictions.des_burn, 3500);
    EXPECT_EQ(predictions.default_climb_rate, 3300);
}

}  // namespace
