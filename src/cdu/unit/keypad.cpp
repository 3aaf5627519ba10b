#include "cdu/unit/keypad.h"

#include "cdu/words/views.h"
#include "fmc/route/execute_route.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/side.h"

namespace {

void Append(std::string& scratchpad, char character) {
    if (scratchpad.size() < kScratchPadLimit) scratchpad.push_back(character);
}

void TakeEntered(int& entered, int& shown) {
    if (entered > 0) shown = entered;
    entered = 0;
}

void FillFlaps(int& flaps, int setting) {
    if (flaps == 0) flaps = setting;
}

// A new route's takeoff: the captain's key takes what the crew has prepared, the first officer's what the
// configuration has.
void CommitTakeoffValues(int side) {
    if (side == kCaptain) {
        TakeEntered(perf.V1Entered, perf.v1);
        TakeEntered(perf.VREntered, perf.vr);
        TakeEntered(perf.V2Entered, perf.v2);
        FillFlaps(perf.to_flaps, cfg.ToFlaps);
        FillFlaps(perf.ldg_flaps, cfg.LdgFlaps);
        return;
    }
    perf.V1Entered = perf.v1 = cfg.V1;
    perf.VREntered = perf.vr = cfg.VR;
    perf.V2Entered = perf.v2 = cfg.V2;
    perf.to_flaps = cfg.ToFlaps;
    perf.ldg_flaps = cfg.LdgFlaps;
    perf.vref = cfg.VREF;
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

void OnExec(int side) {
    if (!AwaitsExec()) return;
    if (plan.fms_fpln_active == kRouteActivated) CommitTakeoffValues(side);
    ExecuteRoute();
    LeaveLegsView();
}

void OnPreviousPage(int side) {
    CduOf(side).PrevPagePending = 1;
}

void OnNextPage(int side) {
    CduOf(side).NextPagePending = 1;
}
