#include "state/checklist.h"

ChecklistState checklist;

namespace {
constexpr Variable kChecklistRows[] = {
    {"CurrentList", &checklist.CurrentList},
    {"Items", &checklist.Items},
    {"CurrentItem", &checklist.CurrentItem},
    {"ListDone", &checklist.ListDone},
};
}  // namespace

const std::span<const Variable> kChecklistVariables = kChecklistRows;
