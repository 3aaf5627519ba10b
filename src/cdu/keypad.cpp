#include "cdu/keypad.h"

#include <string>
#include <string_view>

#include "fmc/execute_route.h"
#include "state/cdu.h"
#include "state/plan.h"

namespace {

constexpr std::size_t kScratchPadLength = 24;
constexpr std::string_view kDeleteMessage = "DELETE";
constexpr int kFirstModeItem = 17, kLastModeItem = 28;
constexpr int kExecItem = 22, kPreviousPageItem = 29, kNextPageItem = 30;

void Append(CduState& unit, char character) {
    if (unit.ScratchPad.size() < kScratchPadLength) unit.ScratchPad += character;
}

}  // namespace

void OnCduKeyChar(int side, char character) {
    Append(CduOf(side), character);
}

void OnSpace(int side) {
    CduState& unit = CduOf(side);
    if (unit.ScratchMessage == kDeleteMessage) {
        unit.ScratchPad.clear();
        unit.ScratchMessage.clear();
    } else {
        unit.ScratchPad += ' ';
    }
}

void OnDelete(int side) {
    CduOf(side).ScratchMessage = kDeleteMessage;
}

void OnSlash(int side) {
    Append(CduOf(side), '/');
}

void OnPlusMinus(int side) {
    CduState& unit = CduOf(side);
    std::string& text = unit.ScratchPad;
    if (text.size() >= kScratchPadLength) return;
    if (text.ends_with('-'))
        text.back() = '+';
    else if (text.ends_with('+'))
        text.back() = '-';
    else
        text += '-';
}

void OnClear(int side) {
    CduState& unit = CduOf(side);
    if (!unit.ScratchMessage.empty())
        unit.ScratchMessage.clear();
    else if (!unit.ScratchPad.empty())
        unit.ScratchPad.pop_back();
}

void OnExec(int) {
    if (plan.fms_fpln_active == 2 || plan.fms_fpln_active == 4) ExecuteRoute();
}

void OnCduKeyPress(int side, int item) {
    CduState& unit = CduOf(side);
    const bool line_key = (item >= 1 && item <= 6) || (item >= 9 && item <= 14);
    if (line_key)
        unit.PendingLine = item;
    else if (item == kExecItem)
        OnExec(side);
    else if (item == kPreviousPageItem)
        unit.PrevPagePending = 1;
    else if (item == kNextPageItem)
        unit.NextPagePending = 1;
    else if (item >= kFirstModeItem && item <= kLastModeItem)
        unit.PendingItem = item;
}
