#include "checklist/checklist.h"

#include <algorithm>

#include "base/numbers.h"
#include "checklist/lists.h"
#include "frame/named_variables.h"
#include "state/checklist.h"
#include "state/requests.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kNotDone = 0, kDone = 1, kOverridden = 2;
constexpr int kNoList = 0;

int& List() {
    return checklist.CurrentList;
}

bool IsMenuShown() {
    return List() == kNormalMenuList || List() == kResetsList;
}

int ItemCount(int list) {
    return static_cast<int>(ChecklistOf(list).items.size());
}

int& ItemOf(int list, int item) {
    return checklist.Items[static_cast<std::size_t>(list)][static_cast<std::size_t>(item)];
}

int& CurrentItemOf(int list) {
    return checklist.CurrentItem[static_cast<std::size_t>(list)];
}

int& DoneOf(int list) {
    return checklist.ListDone[static_cast<std::size_t>(list)];
}

const ChecklistItem& ItemRow(int list, int item) {
    return ChecklistOf(list).items[static_cast<std::size_t>(item - 1)];
}

struct Tally {
    int items = 0, done = 0, overridden = 0;
    bool IsFinished() const { return done + overridden == items; }
};

Tally Count(int list) {
    Tally tally{.items = ItemCount(list)};
    for (int item = 1; item <= tally.items; ++item) {
        tally.done += ItemOf(list, item) == kDone;
        tally.overridden += ItemOf(list, item) == kOverridden;
    }
    return tally;
}

void SetAllItems(int value) {
    for (int item = 1; item <= ItemCount(List()); ++item) ItemOf(List(), item) = value;
}

void OverrideItem() {
    if (CurrentItemOf(List()) > 0) ItemOf(List(), CurrentItemOf(List())) = kOverridden;
}

void OverrideList() {
    SetAllItems(kOverridden);
    DoneOf(List()) = 1;
}

void ResetList() {
    SetAllItems(kNotDone);
    DoneOf(List()) = 0;
}

void ToggleItem(int item) {
    if (!IsChecklistShown() || item < 1 || item > ItemCount(List())) return;
    if (ItemRow(List(), item).holds != nullptr) return;
    int& value = ItemOf(List(), item);
    if (value != kNotDone) DoneOf(List()) = 0;
    value = value == kNotDone ? kDone : kNotDone;
}

constexpr bool Always() {
    return true;
}

constexpr ChecklistKey kKeys[] = {
    {"NORMAL MENU", {-140, -233, 90, 20}, {1, 94, 0, 22}, Always, [] { List() = kNormalMenuList; }},
    {"RESETS", {-46, -233, 90, 20}, {93, 185, 0, 22}, Always, [] { List() = kResetsList; }},
    {"NORMAL", {-135, 150, 50, 25}, {6, 58, 383, 412}, Always, SelectNormalList},
    {"ITEM\nOVRD", {-75, 150, 45, 25}, {66, 113, 383, 412}, IsChecklistShown, OverrideItem},
    {"CHKL\nOVRD", {0, 150, 45, 25}, {141, 188, 383, 412}, IsChecklistShown, OverrideList},
    {"CHKL\nRESET", {60, 150, 45, 25}, {201, 248, 383, 412}, IsChecklistShown, ResetList},
    {"EXIT\nMENU", {80, 150, 45, 25}, {221, 267, 383, 412}, IsMenuShown, [] { List() = kNoList; }},
};

// The row of a list at a height, 0 = between two rows.
int RowAt(int x, int y) {
    constexpr int kFirstRow = 43, kStep = 30, kHeight = 27, kLeft = 5, kRight = 275;
    if (x < kLeft || x > kRight || y < kFirstRow || (y - kFirstRow) % kStep >= kHeight) return 0;
    return (y - kFirstRow) / kStep + 1;
}

void OpenFromMenu(int list) {
    List() = list;
    ResetList();
    CurrentItemOf(list) = 0;
}

void TouchMenu(int x, int y) {
    for (int list = 1; list <= kNormalLists; ++list)
        if (MenuKeyOf(list).Has(x, y)) return OpenFromMenu(list);
}

void MarkPress(int x, int y, int unit) {
    constexpr int kFrameTicks = 6;
    checklist.press_unit = unit;
    checklist.press_x = x;
    checklist.press_y = y;
    checklist.press_timer = kFrameTicks;
}

// A list goes on applying until it is done or the flight has left its phase behind.
bool Applies(int list) {
    constexpr double kEnginesAsleep = 40.0, kOnGround = 50, kHigh = 10000;  // percent N2; ft
    const bool asleep = sim.n2_l <= kEnginesAsleep && sim.n2_r <= kEnginesAsleep;
    const bool low = sim.radio_alt_ft <= kOnGround;
    switch (list) {
        case 1:
        case 2:
            return asleep && low;
        case 3:
        case 4:
            return low;
        case 5:
            return vnav.tod != 1;
        case 6:
            return sim.radio_alt_ft >= kHigh;
        default:
            return true;
    }
}

void SenseItems(int list) {
    for (int item = 1; item <= ItemCount(list); ++item) {
        const auto holds = ItemRow(list, item).holds;
        int& value = ItemOf(list, item);
        if (holds != nullptr && value != kOverridden) value = holds() ? kDone : kNotDone;
    }
}

void FindCurrentItem(int list) {
    int item = 1;
    while (item <= ItemCount(list) && ItemOf(list, item) != kNotDone) ++item;
    CurrentItemOf(list) = item <= ItemCount(list) ? item : 0;
}

void TakeOutsideRequests() {
    constexpr int kMostOutsideItem = 7;
    if (ReadNamedVar(NamedVar("tz_open_checklist")) != 0) {
        WriteNamedVar(NamedVar("tz_open_checklist"), 0);
        List() = 1;
        requests.show_checklist = 1;
    }
    if (const double wanted = ReadNamedVar(NamedVar("tz_set_checklist_item")); wanted != 0) {
        WriteNamedVar(NamedVar("tz_set_checklist_item"), 0);
        if (const int item = WholeNumber(wanted); item <= kMostOutsideItem) ToggleItem(item);
    }
}

}  // namespace

std::span<const ChecklistKey> ChecklistKeys() {
    return kKeys;
}

bool IsChecklistShown() {
    return List() >= 1 && List() <= kNormalLists;
}

Area MenuKeyOf(int list) {
    constexpr int kFirst = 55, kStep = 25, kHeight = 20;
    const int top = kFirst + (list - 1) * kStep;
    return {1, 141, top, top + kHeight};
}

std::string_view CompletionOf(int list) {
    const Tally tally = Count(list);
    if (!tally.IsFinished()) return {};
    return tally.done == 0 ? kChecklistOverridden : "CHECKLIST COMPLETE";
}

void OnChecklistClick(int x, int y, int unit) {
    constexpr int kRightHalf = 283;
    if (x >= kRightHalf) x -= kRightHalf;
    MarkPress(x, y, unit);
    for (const ChecklistKey& key : kKeys)
        if (key.stands() && key.area.Has(x, y)) return key.press();
    if (List() == kNormalMenuList) return TouchMenu(x, y);
    ToggleItem(RowAt(x, y));
}

void SelectNormalList() {
    int list = 1;
    while (list <= kNormalLists && (DoneOf(list) == 1 || !Applies(list))) ++list;
    List() = list <= kNormalLists ? list : kNormalMenuList;
}

void StepChecklist() {
    if (checklist.press_timer > 0) --checklist.press_timer;
    TakeOutsideRequests();
    if (!IsChecklistShown()) return;
    SenseItems(List());
    FindCurrentItem(List());
    if (Count(List()).IsFinished()) DoneOf(List()) = 1;
}
