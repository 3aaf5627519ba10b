#pragma once

#include <span>
#include <string_view>

/// An item of a checklist. A manual one is ticked by the crew; a sensed one follows the aircraft.
struct ChecklistItem {
    std::string_view text;      // may have two lines
    bool (*holds)() = nullptr;  // of a sensed item: what it asks for is so; null for a manual one
};

struct NormalChecklist {
    std::string_view title;
    std::span<const ChecklistItem> items;
};

/// A normal checklist, 1 to 10.
const NormalChecklist& ChecklistOf(int list);
