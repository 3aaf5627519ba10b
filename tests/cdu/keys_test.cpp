#include <gtest/gtest.h>

#include "cdu/pages/procedure_columns.h"
#include "cdu/unit/cdu_service.h"
#include "cdu/unit/init_ref.h"
#include "cdu/unit/items.h"
#include "cdu/unit/keypad.h"
#include "cdu/words/page.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/keyboard.h"
#include "state/nearest.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/vnav.h"
#include "state/weights.h"
#include "support/fake_host.h"

namespace {

class CduKeys : public testing::Test {
  protected:
    static void Ticks(int count) {
        for (int i = 0; i < count; ++i)
            for (const int side : {kCaptain, kFirstOfficer}) StepCdu(side, true);
    }
    FakeHost host;
};

TEST_F(CduKeys, ModeKeysOpenTheirPages) {
    struct Row {
        int item, page, cursor;
    };
    constexpr Row kRows[] = {{18, 22, 1}, {19, 24, 1}, {20, 51, 1}, {21, 15, 1}, {23, 37, 6}, {24, 6, 1},
                             {25, 6, 1},  {26, 6, 1},  {27, 33, 6}, {28, 49, 1}, {31, 49, 1}, {8, 49, 1}};
    for (const Row& row : kRows) {
        OnCduKeyPress(kCaptain, row.item);
        EXPECT_EQ(cdu[0].fms_page, row.page) << row.item;
        EXPECT_EQ(cdu[0].ItemCursor, row.cursor) << row.item;
    }
    EXPECT_EQ(cdu[0].KeyPressTimer[28], 9);
    Ticks(9);
    EXPECT_EQ(cdu[0].KeyPressTimer[28], 0);
    plan.hold_cnt = 1;
    OnCduKeyPress(kCaptain, 25);
    EXPECT_EQ(cdu[0].fms_page, 39);
    EXPECT_EQ(cdu[0].ItemCursor, 3);
    // on LEGS in its hold selection, LEGS goes back to the normal view
    plan.hold_cnt = 0;
    OnCduKeyPress(kCaptain, 25);
    EXPECT_EQ(route_pages.LegsView, 2);
    OnCduKeyPress(kCaptain, 24);
    EXPECT_EQ(route_pages.LegsView, 0);
    // by the keyboard's Enter the first officer's HOLD leaves the view as it is
    for (const int view : {0, 2}) {
        cdu[1].fms_page = kPageLegs;
        route_pages.LegsView = view;
        EnterSoftKey(kFirstOfficer, kItemHold);
        EXPECT_EQ(cdu[1].fms_page, kPageLegs);
        EXPECT_EQ(route_pages.LegsView, view);
    }
    route_pages.LegsView = 0;
    EnterSoftKey(kCaptain, kItemHold);
    EXPECT_EQ(route_pages.LegsView, 2);
}

TEST_F(CduKeys, InitRefGoesByThePhaseOfFlight) {
    const auto page = [] {
        SelectInitRefPage(kCaptain);
        return cdu[0].fms_page;
    };
    cfg.AccelHt = 1500;
    sim.radio_alt_ft = 1500;
    EXPECT_EQ(page(), 26);
    pos_init.InertialEntryLat = 47.4;
    EXPECT_EQ(page(), 3);
    perf.resv_fuel = 5;
    perf.cruise_alt = 35000;
    EXPECT_EQ(page(), 3);  // no runway
    plan.active.ends.dep_runway = "16L";
    EXPECT_EQ(page(), 3);  // no cost index
    perf.cost_index = 0;
    EXPECT_EQ(page(), 27);
    sim.radio_alt_ft = 1501;
    EXPECT_EQ(page(), 52);
    vnav.toc = 1;
    EXPECT_EQ(page(), 12);
    vnav.toc = 0;
    vnav.tod = 1;
    EXPECT_EQ(page(), 12);
}

TEST_F(CduKeys, InitRefComputesTheApproachSpeedsThatAreMissing) {
    struct Row {
        double weight, entry;           // lb
        double vref20, vref25, vref30;  // kt
    };
    constexpr Row kRows[] = {
        {280000, 0, 131, 126, 124}, {280000, 380000, 151, 146, 143},
        {284999, 0, 131, 126, 124}, {285001, 0, 134, 129, 126},
        {100000, 0, 129, 124, 119}, {420000, 0, 159, 154, 143},  // a landing of 380000 lb at most
        {900000, 0, 176, 171, 143},
    };
    cfg.AccelHt = 1500;
    sim.radio_alt_ft = 30000;
    vnav.toc = 1;
    for (const Row& row : kRows) {
        takeoff_approach.Vref20 = takeoff_approach.Vref25 = takeoff_approach.Vref30 = 0;
        weights.gross_weight = row.weight;
        takeoff_approach.ApproachWeightEntry = row.entry;
        SelectInitRefPage(kCaptain);
        EXPECT_EQ(takeoff_approach.Vref20, row.vref20) << row.weight;
        EXPECT_EQ(takeoff_approach.Vref25, row.vref25) << row.weight;
        EXPECT_EQ(takeoff_approach.Vref30, row.vref30) << row.weight;
    }
    takeoff_approach.Vref20 = 0;
    takeoff_approach.Vref25 = 133;  // the crew's own
    weights.gross_weight = 280000;
    SelectInitRefPage(kCaptain);
    EXPECT_EQ(takeoff_approach.Vref20, 131);
    EXPECT_EQ(takeoff_approach.Vref25, 133);
    takeoff_approach.Vref20 = 0;
    cfg.CduAutoCalcVspeeds = 0;
    SelectInitRefPage(kCaptain);
    EXPECT_EQ(takeoff_approach.Vref20, 0);
    cfg.CduAutoCalcVspeeds = 1;
    vnav.toc = 0;
    SelectInitRefPage(kCaptain);
    EXPECT_EQ(takeoff_approach.Vref20, 0) << "THRUST LIM asks for none";
}

TEST_F(CduKeys, ExecOfANewRouteCommitsTheTakeoff) {
    struct Takeoff {
        int v1, vr, v2, v1_entered, vr_entered, v2_entered, to_flaps, ldg_flaps;
        double vref;
        bool operator==(const Takeoff&) const = default;
    };
    struct Row {
        int state, side;
        Takeoff before, after;
    };
    // what the configuration has: 131 135 142, flaps 15 and 25, 139
    constexpr Row kRows[] = {
        {2, kCaptain, {120, 0, 0, 140, 0, 150, 0, 0, 0}, {140, 0, 150, 0, 0, 0, 15, 25, 0}},
        {2, kCaptain, {1, 2, 3, 0, 0, 0, 5, 30, 147}, {1, 2, 3, 0, 0, 0, 5, 30, 147}},
        {2, kFirstOfficer, {120, 0, 0, 140, 0, 150, 5, 0, 147}, {131, 135, 142, 131, 135, 142, 15, 25, 139}},
        {4, kCaptain, {120, 0, 0, 140, 0, 0, 0, 0, 0}, {120, 0, 0, 140, 0, 0, 0, 0, 0}},
        {4, kFirstOfficer, {120, 0, 0, 140, 0, 0, 0, 0, 0}, {120, 0, 0, 140, 0, 0, 0, 0, 0}},
        {1, kCaptain, {120, 0, 0, 140, 0, 0, 0, 0, 0}, {120, 0, 0, 140, 0, 0, 0, 0, 0}},
        {3, kFirstOfficer, {120, 0, 0, 140, 0, 0, 0, 0, 0}, {120, 0, 0, 140, 0, 0, 0, 0, 0}},
    };
    cfg.V1 = 131;
    cfg.VR = 135;
    cfg.V2 = 142;
    cfg.ToFlaps = 15;
    cfg.LdgFlaps = 25;
    cfg.VREF = 139;
    using Press = void (*)(int side);
    for (const Press press : {Press(OnExec), Press([](int side) { OnCduKeyPress(side, kItemExec); }),
                              Press([](int side) { EnterSoftKey(side, kItemExec); })})
        for (const Row& row : kRows) {
            const Takeoff& b = row.before;
            takeoff_approach.v1 = b.v1, takeoff_approach.vr = b.vr, takeoff_approach.v2 = b.v2;
            takeoff_approach.V1Entered = b.v1_entered, takeoff_approach.VREntered = b.vr_entered,
            takeoff_approach.V2Entered = b.v2_entered;
            takeoff_approach.to_flaps = b.to_flaps, takeoff_approach.ldg_flaps = b.ldg_flaps,
            takeoff_approach.vref = b.vref;
            plan.fms_fpln_active = row.state;
            press(row.side);
            const Takeoff after = {
                takeoff_approach.v1,        takeoff_approach.vr,        takeoff_approach.v2,
                takeoff_approach.V1Entered, takeoff_approach.VREntered, takeoff_approach.V2Entered,
                takeoff_approach.to_flaps,  takeoff_approach.ldg_flaps, takeoff_approach.vref};
            EXPECT_TRUE(after == row.after) << "row " << &row - kRows;
        }
}

TEST_F(CduKeys, AltnComputesTheAlternatesAnew) {
    nearest.around.airports.far.rows[1] = {"KAAA", "", 1, 1, 9000, ""};
    nearest.around.airports.far.cnt = 1;
    EnterSoftKey(kCaptain, kItemAltn);
    EXPECT_EQ(nearest.AltnRows[1].ident, "") << "by the keyboard only the page";
    OnCduKeyPress(kCaptain, kItemAltn);
    EXPECT_EQ(nearest.AltnRows[1].ident, "KAAA");
}

TEST_F(CduKeys, ClicksHitWhatTheyShow) {
    OnCduClick(36, 224, 5);  // the captain's RTE on the lower unit
    EXPECT_EQ(cdu[0].fms_page, 22);
    OnCduClick(283 + 36, 224, 5);
    EXPECT_EQ(cdu[1].fms_page, 22);
    OnCduClick(10, 42, 2);
    EXPECT_EQ(cdu[0].PendingLine, 1);
    OnCduClick(283 + 275, 182 + 18, 1);  // the captain's units have the captain's CDU in both halves
    EXPECT_EQ(cdu[0].PendingLine, 14);
    OnCduClick(70, 224, 3);  // between RTE and DEP ARR
    EXPECT_EQ(cdu[1].fms_page, 22);
    OnCduClick(100, 210, 4);  // the scratchpad takes the keyboard, and from the other side
    EXPECT_EQ(cdu[1].PcKeyboardActive, 1);
    EXPECT_EQ(keyboard.keyboard_capture_r, 1);
    OnCduClick(100, 210, 1);
    EXPECT_EQ(cdu[1].PcKeyboardActive, 0);
    EXPECT_EQ(keyboard.keyboard_capture_r, 0);
    EXPECT_EQ(keyboard.keyboard_capture_l, 1);
    OnCduClick(100, 210, 1);
    EXPECT_EQ(keyboard.keyboard_capture_l, 0);
    // CLR MSG acts at the end of its press, and only with a message
    OnCduClick(210, 350, 1);
    EXPECT_EQ(cdu[0].ClearMessageTimer, 0);
    PostCduMessage("INVALID ENTRY", kEntryError, 8, kCaptain);
    OnCduClick(210, 350, 1);
    Ticks(8);
    EXPECT_EQ(cdu[0].CduMessageCount, 1);
    Ticks(1);
    EXPECT_EQ(cdu[0].CduMessageCount, 0);
}

TEST_F(CduKeys, TheKeyboardCursorGoesRound) {
    cdu[0].fms_page = kPageDepArrIndex;
    plan.mod.ends.origin = "ORIG";
    plan.mod.ends.dest = "DEST";
    ToggleKeyboard(kCaptain);
    EXPECT_EQ(cdu[0].ItemCursor, 1);
    cdu[0].PendingLine = 5;  // lets the page mark its lines: L1, R1 and R2
    Ticks(1);
    struct Row {
        int command, item;
    };
    constexpr Row kRows[] = {{3, 9},  {4, 10}, {1, 1},  {4, 9},  {4, 10}, {4, 17}, {1, 22},
                             {4, 30}, {1, 29}, {1, 28}, {4, 1},  {2, 28}, {2, 23}, {1, 27},
                             {2, 21}, {3, 22}, {3, 17}, {4, 23}, {4, 28}, {1, 30}, {4, 10}};
    for (const Row& row : kRows) {
        keyboard.keyboard_code = row.command;
        Ticks(1);
        EXPECT_EQ(cdu[0].ItemCursor, row.item) << "command " << row.command;
    }
    // Enter presses the line under the cursor and goes on to the next
    cdu[0].ItemCursor = 1;
    keyboard.keyboard_code = 5;
    Ticks(1);
    EXPECT_EQ(cdu[0].fms_page, kPageDepartures);
    // and the soft key: INIT REF opens PERF INIT directly
    cdu[0].ItemCursor = 17;
    keyboard.keyboard_code = 5;
    Ticks(1);
    EXPECT_EQ(cdu[0].fms_page, kPagePerfInit);
    EXPECT_EQ(cdu[0].ItemCursor, 17);
    // a cursor or a line that was set to a number which is none presses nothing
    cdu[0].fms_page = kPageDepArrIndex;
    cdu[0].ItemCursor = 5000;
    cdu[0].PendingLine = 200;
    keyboard.keyboard_code = 5;
    Ticks(1);
    EXPECT_EQ(cdu[0].fms_page, kPageDepArrIndex);
}

// More approaches and runways than the eight pages of a departure list: the last must still be in reach.
TEST_F(CduKeys, ProcedureColumnsHaveAPageForEveryRow) {
    struct Row {
        std::size_t left, right;
        int pages;
    };
    constexpr Row kRows[] = {{0, 0, 1}, {5, 0, 1}, {5, 6, 2}, {56, 3, 12}};
    for (const Row& row : kRows) {
        const ProcedureColumn left(row.left), right(row.right);
        EXPECT_EQ(ProcedurePageCount(left, right), row.pages);
    }
    EXPECT_EQ(ItemAtRow(ProcedureColumn(56), 12, 1), 56);
    EXPECT_EQ(ItemAtRow(ProcedureColumn(56), 12, 2), 0);
}

TEST_F(CduKeys, NoNameRunsOutOfItsFace) {
    const std::string name(200, 'X');
    plan.mod.procedures.dep_sid = plan.mod.procedures.arr_star = plan.mod.procedures.arr_appr = name;
    plan.mod.ends.origin = plan.mod.ends.dest = name;
    for (int i = 1; i <= 3; ++i) {
        plan.mod.legs[i].ident = plan.mod.legs[i].via = plan.Route[i].to = plan.Route[i].via = name;
        plan.mod.legs[i].via_type = "SID";
        plan.mod.legs[i].mod_flag = 1;
    }
    plan.mod.leg_cnt = plan.route_cnt = 3;
    for (const int state : {1, 4})
        for (const int page : {6, 10, 11, 22, 24, 55, 58}) {
            plan.fms_fpln_active = state;
            cdu[0].fms_page = page;
            cdu[0].rte_index = state / 2;
            DrawList picture;
            Graphics graphics = GdipCreateGraphics(picture, 564, 424);
            CallPage(graphics, kCaptain, 0);
            for (const Primitive& primitive : picture.primitives)
                if (const auto* run = std::get_if<TextRun>(&primitive)) {
                    EXPECT_GE(run->x, 30) << page;
                    EXPECT_LE(run->x + static_cast<float>(run->text.count) * run->size * 0.6F, 275) << page;
                }
        }
}

TEST_F(CduKeys, MessagesOfBothSidesGoTogether) {
    PostCduMessage("INVALID ENTRY", kEntryError, 8, kCaptain);
    PostCduMessage("DRAG REQUIRED", kAdvisory, 25, kBothSides);
    PostCduMessage("UNABLE CRZ ALT", kEntryError, 24, kBothSides);
    EXPECT_EQ(cdu[0].CduMessageCount, 3);
    EXPECT_EQ(cdu[1].CduMessageCount, 2);
    ClearCduMessage(kFirstOfficer);
    EXPECT_EQ(cdu[0].CduMessageCount, 2);
    EXPECT_EQ(cdu[0].CduMessages[2].title, "DRAG REQUIRED");
    sim.abs_time = 1234;
    ClearCduMessage(kCaptain);
    EXPECT_EQ(cdu[0].CduMessageCount, 1);
    EXPECT_EQ(cdu[1].CduMessageCount, 0);
    EXPECT_EQ(vnav.drag_msg_changed_at, 1234);
    ClearCduMessage(kFirstOfficer);
    EXPECT_EQ(cdu[0].CduMessageCount, 1);
    // an advisory is known by the title that it is shown with
    for (int i = 0; i < 2; ++i) PostCduMessage("", kAdvisory, 57, kBothSides);
    EXPECT_EQ(cdu[0].CduMessageCount, 2);
    EXPECT_EQ(cdu[1].CduMessageCount, 1);
    RemoveCduMessageByTitle("WIND DATA UPLINK READY");
    for (const int id : {3, 27, 49, 58, -1}) PostCduMessage("X", kEntryError, id, kCaptain);
    EXPECT_EQ(cdu[0].CduMessageCount, 1);
}

}  // namespace
