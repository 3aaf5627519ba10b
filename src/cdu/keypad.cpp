#include "cdu/keypad.h"

#include "fmc/execute_route.h"
#include "fmc/route.h"
#include "state/cdu.h"
#include "state/plan.h"

namespace {

void Append(std::string& scratchpad, char character) {
    if (scratchpad.size() < kScratchPadLimit) scratchpad.push_back(character);
}

}  // namespace

void OnCduKeyChar(int side, char character) {
    Append(CduOf(side).ScratchPad, character);
}

void OnSpace(int side) {
    CduState& unit = CduOf(side);
    if (unit.ScratchMessage == kDeleteMessage) {
        unit.ScratchPad.clear();
        unit.ScratchMessage.clear();
    } else {
        unit.ScratchPad.push_back(' ');
    }
}

void OnDelete(int side) {
    CduOf(side).ScratchMessage = kDeleteMessage;
}

void OnSlash(int side) {
    OnCduKeyChar(side, '/');
}

void OnPlusMinus(int side) {
    std::string& scratchpad = CduOf(side).ScratchPad;
    if (scratchpad.size() >= kScratchPadLimit) return;
    const char last = scratchpad.empty() ? ' ' : scratchpad.back();
    if (last == '-')
        scratchpad.back() = '+';
    else if (last == '+')
        scratchpad.back() = '-';
    else
        scratchpad.push_back('-');
}

void OnClear(int side) {
    CduState& unit = CduOf(side);
    if (!unit.ScratchMessage.empty())
        unit.ScratchMessage.clear();
    else if (!unit.ScratchPad.empty())
        unit.ScratchPad.pop_back();
}

void OnExec(int) {
    if (plan.fms_fpln_active != kRouteActivated && plan.fms_fpln_active != kRouteModified) return;
    ExecuteRoute();
    LeaveLegsView();
}

void OnPreviousPage(int side) {
    CduOf(side).PrevPagePending = 1;
}

void OnNextPage(int side) {
    CduOf(side).NextPagePending = 1;
}
