#include "state/checklist.h"

ChecklistState checklist;

namespace {
constexpr Variable kChecklistRows[] = {
    {"CurrentList", &checklist.CurrentList},         {"Items", &checklist.Items},
    {"CurrentItem", &checklist.CurrentItem},         {"ListDone", &checklist.ListDone},
    {"checklist_press_unit", &checklist.press_unit}, {"checklist_press_x", &checklist.press_x},
    {"checklist_press_y", &checklist.press_y},       {"checklist_press_timer", &checklist.press_timer},
};
}  // namespace

const std::span<const Variable> kChecklistVariables = kChecklistRows;
