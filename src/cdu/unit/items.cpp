#include "cdu/unit/items.h"

#include "base/area.h"
#include "cdu/unit/init_ref.h"
#include "cdu/unit/keypad.h"
#include "cdu/unit/page_table.h"
#include "cdu/words/page.h"
#include "cdu/words/views.h"
#include "fmc/legs/route_rows.h"
#include "frame/cues.h"
#include "navdata/nearest.h"
#include "state/displays.h"
#include "state/keyboard.h"
#include "state/plan.h"

namespace {

constexpr int kPressTicks = 9;
constexpr double kHalfWidth = 282;

constexpr SoftKey kSoftKeys[] = {
    {kItemInitRef, "INIT", "REF", 1, 224},
    {kItemRte, "RTE", "", 36, 224},
    {kItemDepArr, "DEP", "ARR", 71, 224},
    {kItemAltn, "ALTN", "", 106, 224},
    {kItemVnav, "VNAV", "", 141, 224},
    {kItemExec, "EXEC", "", 246, 224},
    {kItemFix, "FIX", "", 1, 248},
    {kItemLegs, "LEGS", "", 36, 248},
    {kItemHold, "HOLD", "", 71, 248},
    {kItemFmcComm, "FMC", "COMM", 106, 248},
    {kItemProg, "PROG", "", 141, 248},
    {kItemNavRad, "NAV", "RAD", 1, 272},
    {kItemPrevPage, "PREV", "PAGE", 211, 272},
    {kItemNextPage, "NEXT", "PAGE", 246, 272},
};

constexpr Area kScratchPadBox{43, 245, 205, 221};
constexpr Area kClearMessageKey{204, 241, 341, 364};

// The line key at a place of the half, 0 = none.
int LineKeyAt(double x, double y) {
    for (int row = 1; row <= 6; ++row) {
        const int top = 42 + 28 * (row - 1);
        if (Area{10, 140, top, top + 19}.Has(x, y)) return kL1 + row - 1;
        if (Area{145, 275, top, top + 19}.Has(x, y)) return kR1 + row - 1;
    }
    return 0;
}

// A soft key's area is a pixel narrower than its box.
int SoftKeyAt(double x, double y) {
    for (const SoftKey& key : kSoftKeys)
        if (Area{key.x, key.x + kSoftKeyWidth, key.y, key.y + kSoftKeyHeight - 1}.Has(x, y)) return key.item;
    return 0;
}

void OpenLegs(int side) {
    CduState& unit = CduOf(side);
    unit.legs_index = 1;
    unit.fms_page = kPageLegs;
}

void OpenRte(int side, bool rebuild) {
    CduState& unit = CduOf(side);
    if (rebuild && unit.fms_page != kPageRte) RebuildRouteRows();
    unit.rte_index = 1;
    unit.fms_page = kPageRte;
}

// What a mode key does; by the keyboard's Enter some do less.
void PressSoftKey(int side, int item, bool by_enter) {
    CduState& unit = CduOf(side);
    switch (item) {
        case kItemInitRef:
            if (by_enter)
                unit.fms_page = kPagePerfInit;
            else
                SelectInitRefPage(side);
            break;
        case kItemRte:
            OpenRte(side, !by_enter);
            break;
        case kItemDepArr:
            unit.fms_page = kPageDepArrIndex;
            break;
        case kItemAltn:
            if (!by_enter) BuildAltnList();
            unit.altn_index = 1;
            unit.fms_page = kPageAltn;
            break;
        case kItemVnav:
            unit.fms_page = kPageVnav;
            break;
        case kItemExec:
            OnExec(side);
            break;
        case kItemFix:
            unit.fix_index = 1;
            unit.fms_page = kPageFixInfo;
            break;
        case kItemLegs:
            if (unit.fms_page == kPageLegs) LeaveLegsView();
            OpenLegs(side);
            break;
        case kItemHold:
            if (plan.hold_cnt > 0)
                unit.fms_page = kPageHold;
            else if (by_enter && side == kFirstOfficer)
                OpenLegs(side);  // in whatever view it is
            else
                OpenHoldSelection(side);
            break;
        case kItemProg:
            unit.progress_index = 1;
            unit.fms_page = kPageProgress;
            break;
        case kItemNavRad:
            unit.fms_page = kPageNavRadio;
            break;
        case kItemPrevPage:
            OnPreviousPage(side);
            break;
        case kItemNextPage:
            OnNextPage(side);
            break;
        default:
            break;
    }
}

bool IsSoftKey(int item) {
    return item >= kItemInitRef && item <= kItemNextPage;
}

// What is heard and seen of any press.
void ShowPress(CduState& unit, int item) {
    RequestCue(kCueKeyClick);
    unit.KeyPressTimer[static_cast<std::size_t>(item)] = kPressTicks;
}

bool IsModeKey(int item) {
    return item >= kItemInitRef && item <= kItemNavRad && item != kItemExec && item != kItemFmcComm;
}

}  // namespace

void OpenHoldSelection(int side) {
    LeaveLegsView();
    route_pages.LegsView = kHoldView;
    OpenLegs(side);
}

std::span<const SoftKey> SoftKeys() {
    return kSoftKeys;
}

void OnCduKeyPress(int side, int item) {
    const bool is_line = LineRow(item) > 0;
    if (!is_line && !IsSoftKey(item)) return;
    CduState& unit = CduOf(side);
    ShowPress(unit, item);
    if (is_line) {
        unit.PendingLine = item;
        return;
    }
    PressSoftKey(side, item, false);
    if (IsModeKey(item)) unit.ItemCursor = FirstCursorItem(unit.fms_page);
}

void EnterSoftKey(int side, int item) {
    if (!IsSoftKey(item)) return;
    ShowPress(CduOf(side), item);
    PressSoftKey(side, item, true);
}

void OnClearMessage(int side) {
    CduState& unit = CduOf(side);
    if (unit.CduMessageCount == 0) return;
    RequestCue(kCueKeyClick);
    unit.ClearMessageTimer = kPressTicks;
}

void ToggleKeyboard(int side) {
    const bool takes = CduOf(side).PcKeyboardActive == 0;
    for (CduState& unit : cdu) {
        unit.PcKeyboardActive = 0;
        unit.keyboard_commands = {};
    }
    keyboard.keyboard_code = 0;
    CduState& unit = CduOf(side);
    unit.PcKeyboardActive = takes ? 1 : 0;
    unit.ItemCursor = FirstCursorItem(unit.fms_page);
    keyboard.keyboard_capture_l = cdu[0].PcKeyboardActive;
    keyboard.keyboard_capture_r = cdu[1].PcKeyboardActive;
}

void OnCduTouch(int side, double x, double y) {
    const int line = LineKeyAt(x, y);
    const int soft_key = SoftKeyAt(x, y);
    if (line > 0 || soft_key > 0)
        OnCduKeyPress(side, line > 0 ? line : soft_key);
    else if (kScratchPadBox.Has(x, y))
        ToggleKeyboard(side);
    else if (kClearMessageKey.Has(x, y))
        OnClearMessage(side);
}

void OnCduClick(double x, double y, int display_unit) {
    const int half = x >= kHalfWidth ? 2 : 1;
    OnCduTouch(SideOf(display_unit, half), half == 2 ? x - kRightHalf : x, y);
}
