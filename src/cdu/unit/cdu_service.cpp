#include "cdu/unit/cdu_service.h"

#include <utility>

#include "cdu/unit/cursor.h"
#include "cdu/unit/items.h"
#include "cdu/unit/page_table.h"
#include "cdu/words/page.h"
#include "cdu/words/views.h"
#include "frame/crew_messages.h"
#include "state/keyboard.h"
#include "state/lnav.h"

namespace {

void CountDownPresses(CduState& unit) {
    for (int& timer : unit.KeyPressTimer)
        if (timer > 0) --timer;
}

void StepClearMessage(int side) {
    int& timer = CduOf(side).ClearMessageTimer;
    if (timer > 0 && --timer == 0) ClearCduMessage(side);
}

// The keyboard's code joins a queue of two; a third is written over the second.
void QueueKeyboardCommand(CduState& unit) {
    if (keyboard.keyboard_code == 0 || unit.PcKeyboardActive == 0) return;
    unit.keyboard_commands[unit.keyboard_commands[0] == 0 ? 0 : 1] = keyboard.keyboard_code;
    keyboard.keyboard_code = 0;
}

void TakeKeyboardCommand(int side) {
    CduState& unit = CduOf(side);
    int& slot = unit.keyboard_commands[unit.keyboard_commands[0] != 0 ? 0 : 1];
    const int command = slot;
    slot = 0;
    if (command == 0) return;
    if (command != kCursorEnter) {
        MoveCursor(side, command);
    } else if (unit.ItemCursor >= kItemInitRef) {
        EnterSoftKey(side, unit.ItemCursor);
    } else if (unit.ItemCursor > 0) {
        unit.PendingLine = unit.ItemCursor;
        unit.ItemCursor = NextLineDown(side, unit.ItemCursor);
    }
}

bool HasSomethingPending(const CduState& unit) {
    if (unit.PendingLine != 0) return true;
    if (unit.PrevPagePending == 0 && unit.NextPagePending == 0) return false;
    const CduPage* page = FindPage(unit.fms_page);
    return page != nullptr && page->is_family;
}

}  // namespace

void CallPage(Graphics& graphics, int side, int line) {
    CduState& unit = CduOf(side);
    PageCall call{graphics, side, LineRow(line) > 0 ? line : 0, unit};
    unit.line_selectable = {};
    const CduPage* page = FindPage(unit.fms_page);
    if (page == nullptr) return;
    const bool can_delete = ((page->delete_lines >> call.line) & 1U) != 0;
    if (call.line > 0 && IsDelete(call) && !can_delete) {
        RefuseDelete(call);
        call.line = 0;
    }
    page->draw(call);
}

void StepCdu(int side, bool shown) {
    CduState& unit = CduOf(side);
    CountDownPresses(unit);
    StepClearMessage(side);
    QueueKeyboardCommand(unit);
    TakeViewRequests();
    if (lnav.hold_select_due == side) {
        lnav.hold_select_due = 0;
        OpenHoldSelection(side);
    }
    if (!shown) return;
    TakeKeyboardCommand(side);
    if (!HasSomethingPending(unit)) return;
    DrawList unseen;
    Graphics graphics = GdipCreateGraphics(unseen, 564, 424);
    CallPage(graphics, side, std::exchange(unit.PendingLine, 0));
    TakeViewRequests();  // of an edit that the page has just made
}
