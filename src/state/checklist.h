#pragma once

#include <array>
#include <span>

#include "state/variable.h"

constexpr int kNormalLists = 10;
constexpr int kNormalMenuList = 11, kResetsList = 12;  // pages of the format that are no lists
constexpr int kMostItems = 8;                          // of a list

/// The electronic checklist, one for all displays. Lists and items count from 1.
struct ChecklistState {
    int CurrentList = 0;  // 0 nothing but the menu bar, 1 to 10 a list, 11 NORMAL MENU, 12 RESETS
    std::array<std::array<int, kMostItems + 1>, kNormalLists + 1>
        Items{};                                      // 0 not done, 1 done, 2 overridden
    std::array<int, kNormalLists + 1> CurrentItem{};  // first item that is 0; 0 = none
    std::array<int, kNormalLists + 1> ListDone{};     // complete or overridden
    // the last press, whose key bears a frame for a moment
    int press_unit = 0, press_x = 0, press_y = 0;  // Display Unit; units from the half's corner
    int press_timer = 0;                           // ticks left of the frame
};

extern ChecklistState checklist;
extern const std::span<const Variable> kChecklistVariables;
