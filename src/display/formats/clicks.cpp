#include "display/formats/clicks.h"

#include "cdu/unit/items.h"
#include "display/routing/modes.h"
#include "state/displays.h"
#include "state/nd.h"
#include "state/side.h"

namespace {

constexpr int kLeft = 1, kRight = 2;
constexpr int kRightEdge = 282;    // where the right half's drawings begin
constexpr int kRightCanvas = 283;  // and, one further right, its canvas; 282 is the left one's last column
constexpr int kWideNdShift = 141;  // the wide ND's keys stand around the middle of the unit

// A point in a half's own frame.
struct Touch {
    int unit, half, x, y;
};

struct Area {
    int left, right, top, bottom;  // all within
    bool Has(const Touch& at) const { return at.x >= left && at.x <= right && at.y >= top && at.y <= bottom; }
};

void Leave(FormatClick& click, const Touch& at) {
    click = {at.unit, at.half, at.x, at.y};
}

void TouchComm(const Touch& at) {
    if (Area{1, 282, 1, 395}.Has(at)) Leave(displays.comm_click, at);
}

void TouchChecklist(const Touch& at) {
    constexpr int kTabsBottom = 22;
    constexpr Area kSoftKeys = {0, 282, 383, 412};
    if (at.y <= kTabsBottom || kSoftKeys.Has(at)) Leave(displays.chkl_click, at);
}

// Whose map stands there: on the lower unit the captain has the left half.
int SideOf(const Touch& at) {
    if (at.half == kLeft) return at.unit == 2 || at.unit == 5 ? kCaptain : kFirstOfficer;
    return at.unit == 3 || at.unit == 5 ? kFirstOfficer : kCaptain;
}

void TouchNd(const Touch& at) {
    constexpr int kMapBottom = 379;
    constexpr Area kKeys[] = {
        {7, 273, 0, 24},       // top strip
        {218, 276, 34, 256},   // menu
        {226, 257, 297, 312},  // its EXIT
        {7, 278, 394, 416},    // keys of PLAN
    };
    NdSide& map = NdOf(SideOf(at));
    if (at.y <= kMapBottom && map.nd_pick_pending == 1) {
        map.nd_pick_taken = 1;
        map.nd_cursor_x = at.x;
        map.nd_cursor_y = at.y;
        return;
    }
    for (const Area& area : kKeys)
        if (area.Has(at)) return Leave(displays.nd_click, at);
}

struct SystemPage {
    int page;
    Area strip;
};
constexpr int kCbPage = 2, kMaintPage = 10, kStatPage = 11;
constexpr SystemPage kSystemPages[] = {
    {kStatPage, {2, 41, 0, 24}},   {5, {50, 91, 0, 22}},
    {9, {97, 137, 0, 22}},         {7, {143, 184, 0, 22}},
    {1, {191, 231, 0, 22}},        {3, {236, 278, 0, 22}},
    {8, {2, 51, 30, 48}},          {6, {58, 108, 30, 48}},
    {4, {114, 164, 30, 48}},       {kMaintPage, {171, 221, 30, 48}},
    {kCbPage, {227, 277, 30, 48}},
};
// The pages without a strip of their own but for the way back.
constexpr Area kBackToStat = {2, 55, 0, 24};

void TouchSystemPage(const Touch& at) {
    int& page = SystemPageOf(at.unit, at.half);
    if (page == kCbPage || page == kMaintPage) {
        if (kBackToStat.Has(at)) page = kStatPage;
        return;
    }
    for (const SystemPage& row : kSystemPages)
        if (row.strip.Has(at)) page = row.page;
}

// Where a content's touch areas are measured from: pages whose keys are drawn from the half's edge, from
// there.
int OriginOf(Content content, int half) {
    if (half == kLeft) return 0;
    return content == Content::kInfo || content == Content::kSys ? kRightEdge : kRightCanvas;
}

void TouchContent(Content content, const Touch& at) {
    switch (content) {
        case Content::kComm:
            return TouchComm(at);
        case Content::kChkl:
            return TouchChecklist(at);
        case Content::kInfo:
            return Leave(displays.info_click, at);
        case Content::kNd:
            return TouchNd(at);
        case Content::kSys:
            return TouchSystemPage(at);
        default:
            return;
    }
}

}  // namespace

void OnDisplayUnitClick(int x, int y, int unit) {
    if (unit < 1 || unit > 5) return;
    const int mode = DisplayModeOf(unit);
    const auto contents = ContentsOf(mode);
    if (!contents) return;
    if (mode == kModeWideNd) return TouchNd({unit, kLeft, x - kWideNdShift, y});
    const int half = x < kRightCanvas ? kLeft : kRight;
    const Content content = half == kLeft ? contents->left : contents->right;
    if (content == Content::kCdu) return OnCduClick(x, y, unit);
    TouchContent(content, {unit, half, x - OriginOf(content, half), y});
}
