#pragma once

#include <span>
#include <string_view>

#include "base/area.h"
#include "paint/soft_key.h"

// What the crew and the aircraft do to the electronic checklist.

/// A key of the format. It is drawn about the middle of the half (141, 235), and touched from the half's
/// corner.
struct ChecklistKey {
    std::string_view text;  // may have two lines
    SoftKeyBox box;
    Area area;
    bool (*stands)();  // it is there on the page that is shown
    void (*press)();
};

std::span<const ChecklistKey> ChecklistKeys();

/// The page that is shown is one of the ten lists.
bool IsChecklistShown();

/// The rows of NORMAL MENU: the area of a list's key, 1 to 10.
Area MenuKeyOf(int list);

inline constexpr std::string_view kChecklistOverridden = "CHECKLIST OVERRIDDEN";
/// The list is complete or overridden: the words that the screen has for that, empty for neither.
std::string_view CompletionOf(int list);

/// A press at x, y of the half of a Display Unit (1 to 5); x of the right half may count from the unit's
/// corner.
void OnChecklistClick(int x, int y, int unit);

/// Shows the first list that isn't done and applies as the flight stands; NORMAL MENU when there is none.
void SelectNormalList();

/// Once a service call: what other programs ask for, the sensed items of the list that is shown, and whether
/// it is done.
void StepChecklist();
