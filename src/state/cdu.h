#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

struct CduMessage {
    std::string title;
    std::string body;  // may hold line feeds
    int kind = 0;      // 1 advisory, 2 refused operation, 3 file stored, 4 entry error, 99 and 100 coloured
    int side = 0;
};

/// One CDU. cdu[0] is the captain's, cdu[1] the first officer's: CduOf(side).
struct CduState {
    int fms_page = 0;
    int prev_fms_page = 0;
    std::string ScratchPad;      // at most 24 characters from the keypad
    std::string ScratchMessage;  // hides the scratchpad while not empty
    int ItemCursor = 0;
    int PendingLine = 0;  // line key waiting for the next page call: 1-6 left, 9-14 right
    int PrevPagePending = 0, NextPagePending = 0;  // until a page with several pages takes them
    int PendingItem = 0;  // item of the face that a KEYPRESS variable names; 0 = none
    int PcKeyboardActive = 0;
    GrowingList<CduMessage> CduMessages;  // from 1, CduMessageCount is the newest
    int CduMessageCount = 0;
};

extern std::array<CduState, 2> cdu;
extern const std::span<const Variable> kCduVariables;

inline CduState& CduOf(int side) {
    return cdu[side == 2 ? 1 : 0];
}
