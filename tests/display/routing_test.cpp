#include "display/routing.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

#include "state/displays.h"
#include "state/side.h"
#include "state/state_groups.h"

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

// Every button from every state that can be reached: no code is ever produced that isn't listed.
TEST(Routing, NoUnknownCodeIsReached) {
    using State = std::array<int, 8>;
    const auto take = [] {
        return State{displays.du_capt_outb_mode,  displays.du_capt_inb_mode, displays.du_fo_inb_mode,
                     displays.du_fo_outb_mode,    displays.du_lower_mode,    displays.dsp_capt_mode_button,
                     displays.dsp_fo_mode_button, displays.du_sel_pos};
    };
    const auto put = [](const State& s) {
        displays.du_capt_outb_mode = s[0], displays.du_capt_inb_mode = s[1], displays.du_fo_inb_mode = s[2];
        displays.du_fo_outb_mode = s[3], displays.du_lower_mode = s[4], displays.dsp_capt_mode_button = s[5];
        displays.dsp_fo_mode_button = s[6], displays.du_sel_pos = s[7];
    };
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
    ResetSystemState();
    std::set<State> seen{take()};
    std::vector<State> open{take()};
    constexpr std::size_t kEnough = 60000;
    while (!open.empty() && seen.size() < kEnough) {
        const State from = open.back();
        open.pop_back();
        for (int button = 0; button < 32; ++button) {
            put(from);
            press(button);
            const State to = take();
            for (int unit = 0; unit < 5; ++unit)
                ASSERT_TRUE(ContentsOf(to[static_cast<std::size_t>(unit)]) ||
                            to[static_cast<std::size_t>(unit)] == 200)
                    << "unit " << unit + 1 << " shows " << to[static_cast<std::size_t>(unit)]
                    << " after button " << button;
            if (seen.insert(to).second) open.push_back(to);
        }
    }
    EXPECT_GT(seen.size(), 1000U);
}

}  // namespace
