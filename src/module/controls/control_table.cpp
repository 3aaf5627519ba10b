#include "module/controls/control_table.h"

#include <array>
#include <initializer_list>

#include "module/controls/panels.h"
#include "state/module_life.h"

namespace {

constexpr int kPhases = 18;

constexpr unsigned At(std::initializer_list<int> phases) {
    unsigned bits = 0;
    for (const int phase : phases) bits |= 1u << phase;
    return bits;
}
constexpr unsigned kEveryPhase = (1u << kPhases) - 1;

// About a quarter of the controls in one frame: each is seen within a fifth of a second. Who types looks at
// the scratchpad, so that the keypads are looked at in each frame.
const PollSet kSets[] = {
    {"always", kEveryPhase, AlwaysPolledControls()},
    {"overhead_forward", At({0, 4, 8, 12}), ForwardOverheadControls()},
    {"overhead_middle", At({1, 5, 9, 13}), MiddleOverheadControls()},
    {"overhead_engine", At({2, 6, 10, 14}), EngineOverheadControls()},
    {"air", At({3, 7, 11, 15}), AirControls()},
    {"tablets", At({3, 7, 11, 15}), TabletControls()},
    {"keypads", kEveryPhase, KeypadControls()},
    {"pedestal", At({4, 8, 12, 16}), PedestalControls()},
    {"displays", At({5, 9, 13, 17}), DisplayControls()},
    {"glareshield", At({0, 6, 10, 14}), GlareshieldControls()},
    {"other", At({1, 5, 9, 13}), OtherControls()},
    {"selector", 0, SelectorControls()},
};

// Each named variable's control, by its row in the catalogue.
using ControlByRow = std::array<const Control*, kNamedVariableCount>;
ControlByRow IndexControls() {
    ControlByRow index{};
    for (const PollSet& set : kSets)
        for (const Control& control : set.controls)
            index[static_cast<std::size_t>(control.variable.row)] = &control;
    return index;
}

bool IsModelsOwn(const Control& control) {
    // After the start its position is known here, and a variable registered anew isn't.
    const bool kept_by_model = control.kept_by_model && module_life.startup_done == 0;
    return kept_by_model || control.kind == ControlClass::kMirrored;
}

}  // namespace

std::span<const PollSet> PollSets() {
    return kSets;
}

const Control* FindControl(NamedVarRef variable) {
    static const ControlByRow index = IndexControls();
    return index[static_cast<std::size_t>(variable.row)];
}

const char* ClassName(ControlClass kind) {
    constexpr const char* kNames[] = {"latching", "momentary", "switch", "rotary",
                                      "knob",     "guarded",   "guard",  "mirrored"};
    return kNames[static_cast<std::size_t>(kind)];
}

void WriteControlVariables() {
    for (int row = 0; row < kNamedVariableCount; ++row) {
        const NamedVarRef variable{row};
        const Control* control = FindControl(variable);
        if (ShadowOf(variable) == nullptr || (control != nullptr && IsModelsOwn(*control))) continue;
        WriteNamedVar(variable, *ShadowOf(variable));
    }
}
