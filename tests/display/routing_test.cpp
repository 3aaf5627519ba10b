#include "display/routing/routing.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/side.h"
#include "state/state_groups.h"
#include "state/time_base.h"

namespace {

using enum Content;
constexpr Content kButtons[] = {kCdu, kChkl, kComm, kInfo, kNd, kSys};

TEST(Modes, CodesAreThoseOfTheirBlocks) {
    const struct {
        int code;
        Content left, right;
    } kCases[] = {
        {1, kAux, kPfd},    {2, kPfd, kAux},     {3, kCdu, kCdu},    {6, kCdu, kEicas},
        {18, kChkl, kSys},  {19, kComm, kCdu},   {27, kEicas, kCdu}, {30, kEicas, kInfo},
        {33, kEicas, kSys}, {37, kInfo, kEicas}, {47, kNd, kNd},     {53, kSelect, kEicas},
        {65, kSys, kSys},   {80, kPfd, kCdu},    {85, kPfd, kNd},    {88, kEicas, kPfd},
        {89, kCdu, kPfd},   {93, kNd, kPfd},     {95, kSys, kPfd},
    };
    for (const auto& row : kCases) {
        EXPECT_EQ(CodeOf(row.left, row.right), row.code);
        ASSERT_TRUE(ContentsOf(row.code)) << row.code;
        EXPECT_EQ(ContentsOf(row.code)->left, row.left) << row.code;
        EXPECT_EQ(ContentsOf(row.code)->right, row.right) << row.code;
    }
    for (const int unknown : {0, -1, 66, 79, 96, 200, 201}) EXPECT_FALSE(ContentsOf(unknown)) << unknown;
    EXPECT_FALSE(CodeOf(kEicas, kEicas));
}

TEST(Routing, InboardButtons) {
    const struct {
        int side, half, mode;
        Content pressed;
        int becomes;
    } kCases[] = {
        {kCaptain, 2, 5, kCdu, 50},  // the CDU moves over
        {kCaptain, 2, 42, kNd, 47},  // one full-width ND
        {kCaptain, 1, 19, kChkl, 11},     {kCaptain, 1, 11, kComm, 19},
        {kCaptain, 1, 42, kCdu, 9},   // ND and CDU: the CDU moves to the left, (CDU, SELECT)
        {kCaptain, 1, 50, kCdu, 50},  // already on the right
        {kCaptain, 2, 45, kCdu, 45},  // EICAS stays
        {kCaptain, 2, 65, kSys, 57},      {kCaptain, 1, 63, kSys, 63},
        {kCaptain, 1, 80, kNd, 80},  // a PFD stays
        {kCaptain, 2, 80, kNd, 85},       {kCaptain, 2, 83, kNd, 83},
        {kFirstOfficer, 1, 31, kCdu, 31},  // EICAS stays on the left
        {kFirstOfficer, 2, 31, kCdu, 27}, {kFirstOfficer, 1, 42, kCdu, 3},
        {kFirstOfficer, 1, 58, kCdu, 3},  {kFirstOfficer, 1, 8, kNd, 47},
        {kFirstOfficer, 2, 3, kCdu, 3},   {kFirstOfficer, 2, 88, kNd, 88},
        {kFirstOfficer, 1, 93, kCdu, 93},
    };
    for (const auto& row : kCases) {
        ResetSystemState();
        displays.du_lower_mode = 50;  // SELECT and CDU
        displays.dsp_capt_mode_button = displays.dsp_fo_mode_button = row.half;
        int& mode = row.side == kCaptain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode;
        mode = row.mode;
        PressInboardFormat(row.side, row.pressed);
        EXPECT_EQ(mode, row.becomes) << "side " << row.side << " half " << row.half << " from " << row.mode
                                     << " by " << ContentName(row.pressed);
    }
}

TEST(Routing, FreeInboardSendsThePressOutboard) {
    ResetSystemState();
    displays.du_capt_inb_mode = displays.du_fo_inb_mode = 200;
    PressInboardFormat(kCaptain, kComm);
    PressInboardFormat(kFirstOfficer, kComm);
    EXPECT_EQ(displays.du_capt_outb_mode, 82);
    EXPECT_EQ(displays.du_fo_outb_mode, 91);
    EXPECT_EQ(displays.du_capt_inb_mode, 200);
}

TEST(Routing, UnitsGiveWayToEachOther) {
    const struct {
        bool on_lower;
        int side;
        Content pressed;
        int inboard, lower, inboard_becomes, lower_becomes;
    } kCases[] = {
        // a press on an inboard unit clears the lower unit's half of that side
        {false, kCaptain, kCdu, 43, 4, 4, 51},
        {false, kFirstOfficer, kCdu, 31, 3, 27, 9},
        {false, kFirstOfficer, kCdu, 31, 42, 27, 48},
        {false, kCaptain, kChkl, 42, 3, 11, 3},
        // a press on the lower unit clears the inboard unit of that side
        {true, kCaptain, kCdu, 6, 50, 53, 3},
        {true, kCaptain, kNd, 45, 3, 53, 42},
        {true, kCaptain, kSys, 65, 3, 57, 58},
        {true, kFirstOfficer, kNd, 31, 3, 32, 8},
        {true, kFirstOfficer, kChkl, 59, 3, 64, 4},
        {true, kCaptain, kComm, 22, 3, 22, 19},
        // nothing changes on the lower unit, so nothing gives way
        {true, kCaptain, kCdu, 6, 3, 6, 3},
    };
    for (const auto& row : kCases) {
        ResetSystemState();
        displays.dsp_capt_mode_button = 1;
        displays.dsp_fo_mode_button = 2;
        displays.du_lower_mode = row.lower;
        int& inboard = row.side == kCaptain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode;
        inboard = row.inboard;
        if (row.on_lower)
            PressLowerFormat(row.side, row.pressed);
        else
            PressInboardFormat(row.side, row.pressed);
        EXPECT_EQ(inboard, row.inboard_becomes) << row.inboard << " " << ContentName(row.pressed);
        EXPECT_EQ(displays.du_lower_mode, row.lower_becomes)
            << row.inboard << " " << ContentName(row.pressed);
    }
}

TEST(Routing, EicasToggle) {
    const struct {
        int capt, fo, capt_outb, fo_outb, capt_becomes, fo_becomes, capt_outb_becomes, fo_outb_becomes;
    } kCases[] = {
        {42, 31, 1, 2, 45, 47, 1, 2},       {45, 47, 1, 2, 47, 31, 1, 2},
        {39, 30, 85, 88, 37, 46, 83, 93},   {83, 64, 83, 93, 85, 32, 85, 88},
        {200, 88, 82, 91, 200, 93, 83, 88}, {3, 3, 1, 2, 3, 3, 1, 2},
    };
    for (const auto& row : kCases) {
        ResetSystemState();
        displays.du_capt_inb_mode = row.capt;
        displays.du_fo_inb_mode = row.fo;
        displays.du_capt_outb_mode = row.capt_outb;
        displays.du_fo_outb_mode = row.fo_outb;
        PressEicas();
        EXPECT_EQ(displays.du_capt_inb_mode, row.capt_becomes) << row.capt;
        EXPECT_EQ(displays.du_fo_inb_mode, row.fo_becomes) << row.fo;
        EXPECT_EQ(displays.du_capt_outb_mode, row.capt_outb_becomes) << row.capt_outb;
        EXPECT_EQ(displays.du_fo_outb_mode, row.fo_outb_becomes) << row.fo_outb;
    }
}

TEST(Routing, EicasToggleClearsTheLowerUnit) {
    const struct {
        int capt, fo, lower, lower_becomes;
    } kCases[] = {
        {42, 200, 47, 55},  // EICAS in place of another format than ND
        {6, 200, 42, 50},  {14, 200, 43, 51}, {39, 200, 49, 57}, {47, 200, 42, 42},  // EICAS in place of ND
        {22, 200, 42, 42},  // ND comes back, but not from 6 or 14
        {6, 200, 58, 58},  {200, 27, 8, 9},   {200, 31, 63, 64}, {200, 42, 8, 8},   {200, 27, 3, 3},
    };
    for (const auto& row : kCases) {
        ResetSystemState();
        displays.du_capt_inb_mode = row.capt;
        displays.du_fo_inb_mode = row.fo;
        displays.du_lower_mode = row.lower;
        PressEicas();
        EXPECT_EQ(displays.du_lower_mode, row.lower_becomes)
            << row.capt << ", " << row.fo << ", " << row.lower;
        EXPECT_EQ(time_base.tick_phase, 14);
    }
}

TEST(Routing, SideButtonsChooseTheHalf) {
    const struct {
        int side, mode;
        bool left_works, right_works;
    } kCases[] = {
        {kCaptain, 42, true, true},        {kCaptain, 200, false, true},     {kCaptain, 6, true, false},
        {kCaptain, 61, true, false},       {kCaptain, 83, true, true},       {kFirstOfficer, 42, true, true},
        {kFirstOfficer, 27, false, true},  {kFirstOfficer, 33, false, true}, {kFirstOfficer, 88, true, true},
        {kFirstOfficer, 200, true, false},
    };
    for (const auto& row : kCases)
        for (const int half : {1, 2}) {
            ResetSystemState();
            const bool captain = row.side == kCaptain;
            (captain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode) = row.mode;
            int& chosen = captain ? displays.dsp_capt_mode_button : displays.dsp_fo_mode_button;
            chosen = 3 - half;
            SelectHalf(row.side, half);
            const bool works = half == 1 ? row.left_works : row.right_works;
            EXPECT_EQ(chosen, works ? half : 3 - half) << row.side << " " << row.mode << " " << half;
        }
}

TEST(Routing, PowerBringsInboardFormatsBack) {
    const struct {
        int capt, fo, selector, capt_becomes, fo_becomes;
    } kCases[] = {{83, 88, 0, 45, 31}, {83, 31, -1, 45, 31}, {83, 89, 1, 83, 89}, {85, 27, 0, 85, 27}};
    for (const auto& row : kCases) {
        displays.du_capt_inb_mode = row.capt;
        displays.du_fo_inb_mode = row.fo;
        electrical.power_level = 250;
        cockpit.TZ_MAIN_PFD_MFD_L_Switch = row.selector;
        RepairInboardModes();
        EXPECT_EQ(displays.du_capt_inb_mode, row.capt_becomes) << row.capt << ", " << row.selector;
        EXPECT_EQ(displays.du_fo_inb_mode, row.fo_becomes) << row.fo;
    }
}

TEST(Routing, SelectorMovesThePfd) {
    ResetSystemState();
    displays.du_capt_inb_mode = 45;
    MoveDisplaySelector(-1);
    EXPECT_EQ(displays.du_capt_outb_mode, 83);
    EXPECT_EQ(displays.du_capt_inb_mode, 200);
    EXPECT_EQ(displays.dsp_capt_mode_button, 2);
    MoveDisplaySelector(0);
    EXPECT_EQ(displays.du_capt_inb_mode, 45);
    EXPECT_EQ(displays.du_capt_outb_mode, 1);
    displays.du_capt_inb_mode = 11;
    MoveDisplaySelector(1);
    EXPECT_EQ(displays.du_capt_inb_mode, 80);
    EXPECT_EQ(displays.du_capt_outb_mode, 200);
    displays.du_capt_inb_mode = 81;
    MoveDisplaySelector(0);
    EXPECT_EQ(displays.du_capt_inb_mode, 43);
}

// Every button from every pair of codes, whether it can be reached or not: no code is ever produced that
// isn't listed.
TEST(Routing, NoUnknownCodeIsReached) {
    const auto press = [](int button) {
        if (button < 12)
            PressInboardFormat(button < 6 ? kCaptain : kFirstOfficer, kButtons[button % 6]);
        else if (button < 24)
            PressLowerFormat(button < 18 ? kCaptain : kFirstOfficer, kButtons[button % 6]);
        else if (button < 28)
            SelectHalf(button < 26 ? kCaptain : kFirstOfficer, button % 2 + 1);
        else if (button < 31)
            MoveDisplaySelector(button - 29);
        else
            PressEicas();
    };
    constexpr int kButtonCount = 32;
    std::vector<int> codes{200};
    for (const ModeCode& mode : ModeCodes()) codes.push_back(mode.code);
    const std::set<int> listed(codes.begin(), codes.end());
    ResetSystemState();
    const DisplayState start = displays;
    for (const int inboard : codes)
        for (const int other : codes)
            for (const int half : {1, 2})
                for (const int selector : {-1, 0, 1})
                    for (int button = 0; button < kButtonCount; ++button) {
                        displays = start;
                        displays.du_capt_inb_mode = displays.du_fo_inb_mode = inboard;
                        displays.du_capt_outb_mode = displays.du_fo_outb_mode = displays.du_lower_mode =
                            other;
                        displays.dsp_capt_mode_button = displays.dsp_fo_mode_button = half;
                        displays.du_sel_pos = selector;
                        press(button);
                        for (int unit = 1; unit <= 5; ++unit)
                            ASSERT_TRUE(listed.contains(DisplayModeOf(unit)))
                                << "unit " << unit << " shows " << DisplayModeOf(unit) << " after button "
                                << button << " with " << inboard << " and " << other;
                    }
}

}  // namespace
