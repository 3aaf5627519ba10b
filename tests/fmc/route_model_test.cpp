#include <gtest/gtest.h>

#include <random>

#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_airway.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/endpoints.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "fmc/route_invariants.h"
#include "fmc/route_model.h"
#include "navdata/airways.h"
#include "navdata/parse_entry.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/requests.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/weights.h"

namespace {

TEST_F(RouteModel, StateAdvancesInItsCircleAndPreparesTheAircraftOnTheGround) {
    cfg.SetMCPCruiseAltonFlightPlanLoad = 1;
    cfg.LoadFuelonFlightPlanLoad = 1;
    plan.active.stpos = plan.mod.stpos = 4;
    for (const int next : {1, 2, 3, 4, 3}) {
        AdvanceRouteState();
        EXPECT_EQ(plan.fms_fpln_active, next);
    }
    EXPECT_EQ(plan.pending_stpos, 4);
    EXPECT_TRUE(host.events.empty());
    plan.mod.entries.cruise_alt = 999;
    AdvanceRouteState();
    EXPECT_TRUE(host.events.empty());
    plan.mod.entries.cruise_alt = 35000;
    perf.planned_fuel = 90000;
    host.tokens = {{290, 20000}, {292, 5000}, {298, 5000}, {306, 6.7}};
    AdvanceRouteState();
    ASSERT_EQ(host.events.size(), 1u);
    EXPECT_EQ(host.events[0], (std::pair{66124, 35000}));
    // 6.7 lb a gallon, 5000 gal in a main tank: what they don't hold goes into the centre tank.
    EXPECT_EQ(host.client_events, std::vector{9});
    EXPECT_NEAR(weights.fuel_load_left, 5000, 1e-9);
    EXPECT_NEAR(weights.fuel_load_right, 5000, 1e-9);
    EXPECT_NEAR(weights.fuel_load_centre, 90000 / 6.7 - 10000, 1e-9);
    perf.planned_fuel = 90000;
    sim.ground_speed_kt = 5;
    AdvanceRouteState();
    EXPECT_EQ(host.events.size(), 1u);
    EXPECT_EQ(perf.planned_fuel, 90000);
}

TEST_F(RouteModel, RowsStandForAirwaysAndDirects) {
    Enter("ORIG AAA Q1 CCC Q2 EASTX LONER DEST");
    EXPECT_EQ(Rows(), "DIRECT AAA, Q1(AWY) CCC, Q2(AWY) EASTX, DIRECT LONER");
    // An airway without an end shows its name and no fix, and never reaches the active route.
    InsertAirwayPlaceholder(plan.mod.leg_cnt, "Q3");
    EXPECT_EQ(Rows(), "DIRECT AAA, Q1(AWY) CCC, Q2(AWY) EASTX, DIRECT LONER, Q3(AWY) -");
    EXPECT_EQ(FindRouteFix(5, false), 0);
    EXPECT_EQ(FindRouteFix(2, true), 4);
    EXPECT_EQ(FindRouteFix(0, false), 0);
    EXPECT_EQ(FindRouteFix(9, false), 0);
    ExecuteRoute();
    EXPECT_EQ(ActiveLegs(), "ORIG AAA AAFIX BBFIX CCC EASTX LONER DEST");
    EXPECT_EQ(plan.active.stpos, 1);
}

TEST_F(RouteModel, AirwaysFillFromTheStartFixInBothDirections) {
    Enter("ORIG CCC DEST");
    LoadAirway("#Q1", 2, 1, kCaptain);
    EXPECT_EQ(plan.awy_list_cnt, 6);
    EXPECT_EQ(plan.awy_start_pos, 4);
    EXPECT_EQ(FindFixOnAirway("EEE"), 6);
    EXPECT_EQ(FindFixOnAirway("LONER"), 0);
    for (const int wrong : {4, 0, -1, 7}) {
        InsertAirwaySegment(wrong);
        EXPECT_EQ(ModLegs(), "ORIG CCC DEST");
    }
    InsertAirwayPlaceholder(2, "Q1");
    InsertAirwaySegment(2);
    EXPECT_EQ(ModLegs(), "ORIG CCC BBFIX AAFIX DEST");
    LoadAirway("Q3", 2, 1, kCaptain);
    EXPECT_EQ(plan.awy_list_cnt, 0);
    LoadAirway("NONE", 2, 1, kCaptain);
    EXPECT_EQ(plan.awy_list_cnt, 0);
    // The list outlives the leg that it was made for.
    EnterAndExecute("ORIG CCC EEE DEST");
    InsertEntry(1, "LONER", true);
    LoadAirway("Q1", 2, 2, kCaptain);
    EXPECT_GT(plan.awy_list_cnt, 0);
    EraseModification();
    InsertAirwaySegment(2);
    EXPECT_EQ(ModLegs(), "ORIG CCC EEE DEST");
    // Where the route already goes on from the last fix, it stands once.
    Enter("ORIG AAA CCC DEST");
    LoadAirway("Q1", 2, 1, kCaptain);
    InsertAirwaySegment(FindFixOnAirway("CCC"));
    EXPECT_EQ(ModLegs(), "ORIG AAA AAFIX BBFIX CCC DEST");
}

// Text, keys and crossings mean the same of two airways of one name that begin at a fix.
TEST_F(RouteModel, OfTwoAirwaysThatPassAFixTheEndTellsWhich) {
    const struct {
        const char *route, *legs;
        const char* towards;  // as the keys enter it from the fix
    } kCases[] = {
        {"ORIG CCC Q5 LONER DEST", "ORIG CCC LONER DEST", "LONER"},
        {"ORIG CCC Q5 DDFIX DEST", "ORIG CCC DDFIX DEST", "DDFIX"},
        {"ORIG CCC Q5 Q3 SOLOX DEST", "ORIG CCC LONER SOLOX DEST", "Q3"},
    };
    for (const auto& test : kCases) {
        Enter(test.route);
        EXPECT_EQ(ModLegs(), test.legs) << test.route;
        const std::string joined_to = plan.mod.legs[2].ident;
        LoadAirway("Q5", 2, 1, kCaptain);  // for the row that has that end
        EXPECT_EQ(FindFixOnAirway(joined_to), 2) << test.route;
        Enter("ORIG CCC DEST");
        LoadAirwayTowards("Q5", 1, test.towards);
        EXPECT_EQ(FindFixOnAirway(joined_to), 2) << test.towards;
    }
    LoadAirway("Q5", 2, 1, kCaptain);
    EXPECT_EQ(FindFixOnAirway("DDFIX"), 2) << "the first, while no end is known";
    EXPECT_EQ(FindAirwayCrossing("Q5", "Q3", "CCC").index, 2);
    EXPECT_EQ(FindAirwayCrossing("Q3", "Q5", "SOLOX").index, 1);
    EXPECT_EQ(FindAirwayCrossing("Q5", "Q6", "CCC").index, 0);
}

TEST_F(RouteModel, InsertedFixesOpenADiscontinuityUnlessTheyReplace) {
    EnterAndExecute("ORIG AAA CCC EEE DEST");
    InsertEntry(2, "LONER", true);
    EXPECT_EQ(ModLegs(), "ORIG AAA LONER CCC EEE DEST");
    EXPECT_EQ(plan.fms_fpln_active, kRouteModified);
    InsertEntry(4, "EASTX", false);
    EXPECT_EQ(ModLegs(), "ORIG AAA LONER CCC EASTX DISCO EEE DEST");
    InsertEntry(5, "WWFIX", false);  // one stands there already
    EXPECT_EQ(ModLegs(), "ORIG AAA LONER CCC EASTX WWFIX DISCO EEE DEST");
    EXPECT_EQ(plan.mod.legs[2].mod_flag, 1);
    InsertFixAt(1, nav.entry_cnt + 1, true);
    EXPECT_EQ(plan.mod.leg_cnt, 8);
    EXPECT_EQ(ActiveLegs(), "ORIG AAA CCC EEE DEST");
    EXPECT_EQ(plan.active.legs[1].mod_flag, 0);
    ClearFlightPlan();
    InsertFixAt(1, nav.entry_cnt + 1, true);
    EXPECT_EQ(plan.mod.leg_cnt, 0);
}

TEST_F(RouteModel, PositionsGetMadeNamesThatNoOtherLegHas) {
    Enter("ORIG CCC DEST");
    // Half a degree of latitude is 30 nm: 30 nm towards DEST, then back from there towards CCC.
    plan.along_track_nm = 30;
    InsertFixAt(1, 0, true);
    EXPECT_EQ(ModLegs(), "ORIG CCC CCC01 DEST");
    EXPECT_NEAR(plan.mod.legs[2].lat, 42.5, 1e-6);
    EXPECT_EQ(plan.along_track_nm, 0);
    plan.along_track_nm = -12;
    InsertFixAt(2, 0, true);
    EXPECT_EQ(ModLegs(), "ORIG CCC CCC0101 CCC01 DEST");
    EXPECT_NEAR(plan.mod.legs[2].lat, 42.3, 1e-6);
    InsertEntry(1, "CCC180/60", true);
    EXPECT_EQ(plan.mod.legs[1].ident, "CCC02");
    EXPECT_NEAR(plan.mod.legs[1].lat, 41, 0.01);
    EXPECT_EQ(plan.mod.legs[1].type, "WPT");
    InsertEntry(1, "N4130.5W00130.5", true);
    InsertEntry(1, "N4130.5W00130.5", true);
    EXPECT_EQ(ModLegs(), "ORIG WPT02 WPT01 CCC02 CCC CCC0101 CCC01 DEST");
    InsertEntry(1, "EEE150/AAA060", true);
    EXPECT_EQ(plan.mod.legs[1].ident, "EEE01");
}

TEST_F(RouteModel, DeletedLegsLeaveOneDiscontinuity) {
    Enter("ORIG AAA BBFIX CCC DDFIX DEST");
    DeleteLegWithDiscontinuity(2, false, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO CCC DDFIX DEST");
    EXPECT_TRUE(plan.mod.legs[2].type.empty());
    EXPECT_EQ(plan.mod.legs[2].alt_restr, kNone);
    DeleteLegWithDiscontinuity(4, false, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO CCC DISCO DEST");
    DeleteLegWithDiscontinuity(3, false, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO DEST");
    for (const int end : {0, 3, 9}) DeleteLegWithDiscontinuity(end, false, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO DEST");
    DeleteLegWithDiscontinuity(2, true, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA DEST");
}

TEST_F(RouteModel, RowsGoAsBlocks) {
    const struct {
        const char *route, *operation, *result, *legs;
    } kCases[] = {
        {"ORIG AAA Q1 CCC LONER DEST", "RemoveToRow 2", "1", "ORIG AAA DISCO LONER DEST"},
        {"ORIG AAA LONER DEST", "RemoveToRow 2", "1", "ORIG AAA DISCO DEST"},
        {"ORIG AAA DEST", "RemoveToRow 1", "1", "ORIG DEST"},
        {"ORIG AAA DEST", "RemoveToRow 2", "0", "ORIG AAA DEST"},
        {"ORIG AAA DEST", "RemoveToRow 0", "0", "ORIG AAA DEST"},
        {"ORIG AAA Q1 CCC LONER DEST", "RemoveViaRow 2", "1", "ORIG AAA CCC LONER DEST"},
        {"ORIG AAA Q1 CCC LONER DEST", "RemoveViaRow 3", "0", "ORIG AAA AAFIX BBFIX CCC LONER DEST"},
        {"ORIG AAA Q1 CCC DEST", "RemoveViaRow 7", "0", "ORIG AAA AAFIX BBFIX CCC DEST"},
        {"ORIG AAA Q1 CCC DEST", "RemoveViaRow -1", "0", "ORIG AAA AAFIX BBFIX CCC DEST"},
    };
    for (const auto& test : kCases) {
        EnterAndExecute(test.route);
        EXPECT_EQ(Op(test.operation), test.result) << test.operation;
        EXPECT_EQ(ModLegs(), test.legs) << test.route << ": " << test.operation;
        EXPECT_EQ(plan.fms_fpln_active, std::string(test.result) == "1" ? kRouteModified : kRouteActive);
    }
    EXPECT_EQ(Rows(), "DIRECT AAA, Q1(AWY) CCC");
    // A discontinuity is no row that could go.
    EnterAndExecute("ORIG AAA BBFIX CCC DEST");
    DeleteLegWithDiscontinuity(2, false, kCaptain);
    RebuildRouteRows();
    EXPECT_EQ(RemoveToRow(2), 0);
    EXPECT_EQ(ModLegs(), "ORIG AAA DISCO CCC DEST");
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
}

TEST_F(RouteModel, OtherConnectionsOnlyTakeOutWhatLiesBetween) {
    EnterAndExecute("ORIG AAA BBFIX CCC EEE DEST");
    ConnectLegs(2, 4, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA BBFIX EEE DEST");
    EXPECT_EQ(plan.direct_to_pending, 0);
    ConnectLegs(3, 2, kCaptain);
    ConnectLegs(-1, 2, kCaptain);
    ConnectLegs(2, 9, kCaptain);
    EXPECT_EQ(ModLegs(), "ORIG AAA BBFIX EEE DEST");
}

TEST_F(RouteModel, HoldsFollowTheirLegs) {
    Enter("ORIG AAA BBFIX CCC EEE DEST");
    MarkHold(3, false, 2);
    MarkHold(1, false, 0);
    MarkHold(3, false, 2);  // has one
    MarkHold(9, false, 2);
    ASSERT_EQ(plan.hold_cnt, 2);
    const HoldRecord& first = plan.HoldList[1];
    EXPECT_EQ(first.ident, "AAA");
    EXPECT_EQ(first.pending_leg, 1);
    EXPECT_EQ(first.leg, 0);
    EXPECT_EQ(first.right_turn, 1);
    EXPECT_EQ(first.leg_time, 1);
    // Inbound north, less the variation at 40 N 10 E.
    EXPECT_EQ(first.inbound_crs, first.magvar > 0 ? 360 - first.magvar : -first.magvar);
    EXPECT_EQ(plan.mod.legs[3].hold_pos, 2);
    InsertEntry(2, "LONER", true);
    EXPECT_EQ(plan.HoldList[2].pending_leg, 4);
    std::string error;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1);
    EXPECT_EQ(plan.HoldList[2].leg, 4);
    EXPECT_EQ(plan.HoldList[2].pending_leg, 0);
    EXPECT_EQ(plan.active.legs[4].hold_pos, 2);
    // The hold being flown is left when its leg has gone by EXEC; the page of the last hold closes.
    plan.active.stpos = plan.mod.stpos = 4;
    lnav.holding = 1;
    RemoveHold(1);
    EXPECT_EQ(requests.leave_hold_page, 0);
    DeleteLegWithDiscontinuity(4, false, kCaptain);
    OpenModification();
    EXPECT_EQ(lnav.holding, 1);
    EXPECT_EQ(plan.mod.legs[4].hold_pos, 0);
    EraseModification();
    EXPECT_EQ(plan.mod.legs[4].hold_pos, 2);  // guidance has yet to pass the first
    ConnectLegs(4, 5, kCaptain);
    EXPECT_EQ(plan.hold_cnt, 0);
    EXPECT_EQ(plan.active.legs[4].hold_pos, 2);  // flown until EXEC
    EXPECT_EQ(lnav.holding, 1);
    ExecuteRoute();
    EXPECT_EQ(plan.hold_cnt, 0);
    EXPECT_EQ(lnav.holding, 0);
    EXPECT_EQ(lnav.hold_exit, 4);
    EXPECT_EQ(requests.leave_hold_page, 1);
    Enter("ORIG AAA AAFIX BBFIX CCC DDFIX EEE LONER EASTX WWFIX DEST");
    for (int leg = 1; leg <= 9; ++leg) MarkHold(leg, false, leg - 1);
    EXPECT_EQ(plan.hold_cnt, kMostHolds);
}

TEST_F(RouteModel, AHoldOfTheActivePlanFindsItsLegInTheModification) {
    const struct {
        int leg;
        const char* entry;  // inserted at leg 1 before
        int removed;        // leg of the modification, 0 = none
        int found;
    } kCases[] = {{3, nullptr, 0, 3}, {3, "LONER", 0, 4}, {3, nullptr, 1, 2},
                  {3, nullptr, 3, 0}, {4, "LONER", 5, 0}, {5, nullptr, 0, 5}};
    for (const auto& test : kCases) {
        EnterAndExecute("ORIG AAA BBFIX CCC EEE AAA DEST");
        if (test.entry != nullptr) InsertEntry(1, test.entry, true);
        if (test.removed > 0) DeleteLegWithDiscontinuity(test.removed, true, kCaptain);
        MarkHold(test.leg, true, test.leg - 1);
        ASSERT_EQ(plan.hold_cnt, test.found > 0 ? 1 : 0) << test.leg;
        if (test.found == 0) continue;
        EXPECT_EQ(plan.HoldList[1].pending_leg, test.found);
        EXPECT_EQ(plan.HoldList[1].ident, plan.mod.legs[test.found].ident);
    }
}

TEST_F(RouteModel, OperationsAreCheckedBeforeTheyRun) {
    Enter("ORIG AAA Q1 CCC DEST");
    const struct {
        const char *line, *answer;
    } kCases[] = {
        {"RemoveToRow", "wrong number of arguments, right is: RemoveToRow ROW"},
        {"RemoveToRow 1 2", "wrong number of arguments, right is: RemoveToRow ROW"},
        {"RemoveToRow x", "RemoveToRow: \"x\" isn't a number"},
        {"InsertFixAt 1 99 0", "InsertFixAt: \"99\" isn't the number of a candidate"},
        {"InsertFixAt 1 0 2", "InsertFixAt: \"2\" isn't 0 or 1"},
        {"ConnectLegs 1 2 7", "ConnectLegs: \"7\" isn't a side, 1 or 2"},
        {"LoadAirway Q1 2 NONE 1", "LoadAirway: \"NONE\" isn't a leg, by its number or ident"},
        {"LoadAirway Q1 2 AAA 1", ""},
        {"FindFixOnAirway CCC", "4"},
        {"FindRouteFix 2 1", "4"},
        {"  RebuildRouteRows ", ""},
    };
    for (const auto& test : kCases) EXPECT_EQ(Op(test.line), test.answer) << test.line;
    EXPECT_TRUE(Op("Nothing").starts_with("unknown function \"Nothing\"; known are"));
    EXPECT_EQ(ModLegs(), "ORIG AAA AAFIX BBFIX CCC DEST");
}

TEST_F(RouteModel, HoldsItsInvariantsUnderRandomEdits) {
    std::mt19937 random(20261124);
    const auto any = [&](int low, int high) {
        return std::uniform_int_distribution(low, std::max(low, high))(random);
    };
    const char* const kEntries[] = {"AAA",     "CCC",   "DUPLE",           "LONER",         "CCC090/25",
                                    "N45W120", "5060N", "N4130.5W00130.5", "EEE150/AAA060", "ORIG"};
    const char* const kAirways[] = {"Q1", "Q2", "Q3", "NONE"};
    Enter("ORIG AAA Q1 CCC Q2 EASTX DUPLE DEST");
    for (int step = 0; step < 20000; ++step) {
        const int leg = any(-1, plan.mod.leg_cnt + 1), row = any(0, plan.route_cnt + 1);
        std::string line;
        switch (any(0, 17)) {
            case 0:
                ExecuteRoute();
                line = "ExecuteRoute";
                break;
            case 1:
                EraseModification();
                line = "EraseModification";
                break;
            case 2:
                line = "RemoveToRow";
                RemoveToRow(row);
                break;
            case 3:
                line = "RemoveViaRow";
                RemoveViaRow(row);
                break;
            case 4:
                line = "ConnectLegs";
                ConnectLegs(leg, any(leg, plan.mod.leg_cnt), 1);
                break;
            case 5:
                line = "DeleteLeg";
                DeleteLegWithDiscontinuity(leg, any(0, 4) == 0, 1);
                OpenModification();
                break;
            case 6:
            case 7:
            case 8:
                line = "InsertFixAt";
                if (plan.mod.leg_cnt < 40) InsertEntry(leg, kEntries[any(0, 9)], any(0, 1) == 1);
                break;
            case 9:
                line = "along-track";
                plan.along_track_nm = any(-20, 20);
                if (plan.mod.leg_cnt < 40) InsertFixAt(leg, 0, true);
                plan.along_track_nm = 0;
                break;
            case 10:
                line = "MarkHold";
                MarkHold(leg, any(0, 1) == 1, leg - 1);
                break;
            case 11:
                line = "RemoveHold";
                RemoveHold(leg);
                break;
            case 12:
                line = "airway";
                LoadAirway(kAirways[any(0, 3)], row, leg, 1);
                if (plan.mod.leg_cnt > 40) break;
                if (any(0, 1) == 1 && plan.awy_list_cnt > 0)
                    InsertAirwayPlaceholder(plan.awy_start_leg + 1, plan.awy_name);
                InsertAirwaySegment(any(0, plan.awy_list_cnt + 1));
                OpenModification();
                break;
            case 13:
                line = "NormalizeLegs";
                NormalizeLegs();
                break;
            case 14:
                line = "InsertDirectRow";
                ParseEntry(kEntries[any(0, 9)]);
                if (plan.mod.leg_cnt < 40) InsertDirectRow(any(0, 2), row);
                break;
            case 15:
                line = "EnterDestination";
                if (any(0, 9) == 0) EnterDestination(any(0, 1) == 1 ? "DEST" : "ALTN");
                break;
            case 16:
                line = "sequence";
                if (plan.fms_fpln_active >= kRouteActive && plan.active.stpos < plan.active.leg_cnt) {
                    ++plan.active.stpos;
                    if (IsDisco(plan.active.legs[plan.active.stpos])) ++plan.active.stpos;
                    FollowSequencing();
                }
                break;
            case 17:
                line = "EnterOrigin";
                if (any(0, 99) == 0) EnterOrigin("ORIG");
                if (any(0, 299) == 0) ClearFlightPlan();
                if (plan.mod.leg_cnt < 1) Enter("ORIG AAA Q1 CCC Q2 EASTX DUPLE DEST");
                break;
        }
        line +=
            " at " + std::to_string(leg) + ", row " + std::to_string(row) + ", step " + std::to_string(step);
        ASSERT_NO_FATAL_FAILURE(ExpectInvariants(line));
    }
}

}  // namespace
