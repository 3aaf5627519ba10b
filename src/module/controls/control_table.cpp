#include "module/controls/control_table.h"

#include <initializer_list>

#include "module/controls/panels.h"
#include "state/cockpit.h"
#include "state/module_life.h"

namespace {

constexpr int kPhases = 18;

constexpr unsigned At(std::initializer_list<int> phases) {
    unsigned bits = 0;
    for (const int phase : phases) bits |= 1u << phase;
    return bits;
}
constexpr unsigned kAlways = (1u << kPhases) - 1;

// About a quarter of the controls in one frame: each is seen within a fifth of a second. Who types looks at
// the scratchpad, so that the keypads are looked at in each frame.
const PollSet kSets[] = {
    {"always", kAlways, AlwaysPolledControls()},
    {"overhead_forward", At({0, 4, 8, 12}), ForwardOverheadControls()},
    {"overhead_middle", At({1, 5, 9, 13}), MiddleOverheadControls()},
    {"overhead_engine", At({2, 6, 10, 14}), EngineOverheadControls()},
    {"air_and_tablets", At({3, 7, 11, 15}), AirAndTabletControls()},
    {"keypads", kAlways, KeypadControls()},
    {"pedestal", At({4, 8, 12, 16}), PedestalControls()},
    {"displays", At({5, 9, 13, 17}), DisplayControls()},
    {"glareshield", At({0, 6, 10, 14}), GlareshieldControls()},
    {"other", At({1, 5, 9, 13}), OtherControls()},
    {"selector", 0, SelectorControls()},
};

struct PanelLamp {
    NamedVarRef variable;
    const int* lit;
};
constexpr PanelLamp kLamps[] = {
    {NamedVar("TZ_MCP_L_MFD_L_GREEN"), &cockpit.TZ_MCP_L_MFD_L_GREEN},
    {NamedVar("TZ_MCP_L_MFD_R_GREEN"), &cockpit.TZ_MCP_L_MFD_R_GREEN},
    {NamedVar("TZ_MCP_R_MFD_L_GREEN"), &cockpit.TZ_MCP_R_MFD_L_GREEN},
    {NamedVar("TZ_MCP_R_MFD_R_GREEN"), &cockpit.TZ_MCP_R_MFD_R_GREEN},
    {NamedVar("TZ_MCP_Annun_CAUT"), &cockpit.TZ_MCP_Annun_CAUT},
    {NamedVar("TZ_MCP_Annun_WARN"), &cockpit.TZ_MCP_Annun_WARN},
    {NamedVar("TZ_MCP_AnnunR_CAUT"), &cockpit.TZ_MCP_AnnunR_CAUT},
    {NamedVar("TZ_MCP_AnnunR_WARN"), &cockpit.TZ_MCP_AnnunR_WARN},
};

}  // namespace

std::span<const PollSet> PollSets() {
    return kSets;
}

const Control* FindControl(NamedVarRef variable) {
    for (const PollSet& set : kSets)
        for (const Control& control : set.controls)
            if (control.variable.row == variable.row) return &control;
    return nullptr;
}

const Control* FindGuard(const int* shadow) {
    for (const PollSet& set : kSets)
        for (const Control& control : set.controls)
            if (control.shadow == shadow && control.kind == ControlClass::kGuard) return &control;
    return nullptr;
}

void ShowShadow(const int* shadow) {
    for (const PollSet& set : kSets)
        for (const Control& control : set.controls)
            if (control.shadow == shadow) WriteNamedVar(control.variable, *shadow);
}

const char* ClassName(ControlClass kind) {
    constexpr const char* kNames[] = {"latching", "momentary", "switch", "rotary",
                                      "knob",     "guarded",   "guard",  "mirrored"};
    return kNames[static_cast<std::size_t>(kind)];
}

void WriteControlVariables() {
    for (const PollSet& set : kSets)
        for (const Control& control : set.controls) {
            // After the start its position is known here, and a variable registered anew isn't.
            const bool kept_by_model = control.kept_by_model && module_life.startup_done == 0;
            const bool models_own = kept_by_model || control.kind == ControlClass::kMirrored;
            if (control.shadow != nullptr && !models_own) WriteNamedVar(control.variable, *control.shadow);
        }
    for (const PanelLamp& lamp : kLamps) WriteNamedVar(lamp.variable, *lamp.lit);
}
