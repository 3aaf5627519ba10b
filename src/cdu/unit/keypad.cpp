#include "cdu/unit/keypad.h"

#include "cdu/words/views.h"
#include "fmc/route/execute_route.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/takeoff_approach.h"

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
        TakeEntered(takeoff_approach.V1Entered, takeoff_approach.v1);
        TakeEntered(takeoff_approach.VREntered, takeoff_approach.vr);
        TakeEntered(takeoff_approach.V2Entered, takeoff_approach.v2);
        FillFlaps(takeoff_approach.to_flaps, cfg.ToFlaps);
        FillFlaps(takeoff_approach.ldg_flaps, cfg.LdgFlaps);
        return;
    }
    takeoff_approach.V1Entered = takeoff_approach.v1 = cfg.V1;
    takeoff_approach.VREntered = takeoff_approach.vr = cfg.VR;
    takeoff_approach.V2Entered = takeoff_approach.v2 = cfg.V2;
    takeoff_approach.to_flaps = cfg.ToFlaps;
    takeoff_approach.ldg_flaps = cfg.LdgFlaps;
    takeoff_approach.vref = cfg.VREF;
}

}  // namespace

void OnCduKeyChar(int side, char character) {
    Append(CduOf(side).ScratchPad, character);
}

void PutOnScratchpad(int side, std::string_view text) {
    CduOf(side).ScratchPad = text.substr(0, kScratchPadLimit);
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
