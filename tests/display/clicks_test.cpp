#include "display/formats/clicks.h"

#include <gtest/gtest.h>

#include "state/displays.h"
#include "state/nd.h"
#include "support/fake_host.h"

namespace {

TEST(DisplayClicks, SystemStripsChooseThePageOfTheirHalf) {
    const struct {
        int page, x, y, becomes;
    } kCases[] = {
        {11, 1, 10, 11},
        {5, 2, 24, 11},
        {5, 41, 0, 11},
        {5, 41, 25, 5},
        {11, 50, 22, 5},
        {11, 91, 23, 11},
        {11, 97, 1, 9},
        {11, 184, 1, 7},
        {11, 191, 1, 1},
        {11, 278, 1, 3},
        {11, 51, 30, 8},
        {11, 58, 48, 6},
        {11, 58, 49, 11},
        {11, 164, 40, 4},
        {11, 171, 40, 10},
        {11, 277, 40, 2},
        {11, 45, 10, 11},
        // from CB and MAINT only STAT, and it is wider
        {2, 60, 10, 2},
        {2, 50, 24, 11},
        {10, 55, 10, 11},
        {10, 56, 10, 10},
        {10, 60, 40, 10},
    };
    for (const auto& row : kCases)
        for (const int half : {1, 2}) {
            FakeHost host;
            displays.du_capt_inb_mode = 65;
            displays.du_capt_inb_l_sys_page = displays.du_capt_inb_r_sys_page = row.page;
            OnDisplayUnitClick(row.x + (half == 2 ? 282 : 0), row.y, 2);
            EXPECT_EQ(SystemPageOf(2, half), row.becomes) << row.page << ": " << row.x << ", " << row.y;
            EXPECT_EQ(SystemPageOf(2, 3 - half), row.page) << "the other half stays";
        }
    const FakeHost fresh;
    displays.du_capt_inb_mode = displays.du_lower_mode = 58;  // SYS and CDU
    OnDisplayUnitClick(60, 10, 2);
    EXPECT_EQ(displays.du_capt_inb_l_sys_page, 5);
    EXPECT_EQ(displays.du_lower_l_sys_page, 11) << "each unit has its own";
    OnDisplayUnitClick(283 + 100, 10, 5);
    for (const int unit : {0, 6, -1}) OnDisplayUnitClick(60, 10, unit);
    displays.du_lower_mode = 77;  // no such code
    OnDisplayUnitClick(60, 10, 5);
    EXPECT_EQ(displays.du_lower_l_sys_page, 11);
    EXPECT_EQ(displays.du_lower_r_sys_page, 11);
}

TEST(DisplayClicks, PickOnTheMapGoesBeforeItsKeys) {
    const struct {
        int unit, mode, x, y, side;  // whose map
    } kCases[] = {{2, 42, 100, 200, 1}, {2, 8, 283 + 100, 200, 1}, {3, 42, 100, 200, 2}, {3, 31, 383, 379, 2},
                  {5, 42, 100, 200, 1}, {5, 8, 383, 200, 1},       {4, 93, 100, 200, 2}};
    for (const auto& row : kCases) {
        const FakeHost host;
        DisplayModeOf(row.unit) = row.mode;
        for (NdSide& map : nd) map.nd_pick_pending = 1;
        OnDisplayUnitClick(row.x, row.y, row.unit);
        EXPECT_EQ(NdOf(row.side).nd_pick_taken, 1) << row.unit << ", " << row.mode;
        EXPECT_EQ(NdOf(row.side).nd_cursor_x, 100);
        EXPECT_EQ(NdOf(3 - row.side).nd_pick_taken, 0);
        EXPECT_EQ(NdOf(row.side).nd_pick_pending, 0) << "one press, one point";
        NdOf(row.side).nd_pick_pending = 1;
        OnDisplayUnitClick(row.x, 380, row.unit);
        EXPECT_EQ(NdOf(row.side).nd_cursor_y, row.y) << "below the map";
    }
}

}  // namespace
