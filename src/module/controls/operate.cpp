#include "module/controls/operate.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "frame/controls.h"
#include "frame/cues.h"
#include "module/controls/control_table.h"
#include "platform/host.h"
#include "platform/panel_gauges.h"

namespace {

void Follow(const Control& control, int before) {
    if (control.follow != nullptr) control.follow(before);
}

int CueOf(const Control& control) {
    const bool shut = control.kind == ControlClass::kGuard && *control.shadow == 0;
    return shut ? control.cue + 1 : control.cue;
}

void Ask(int cue) {
    if (cue != 0) RequestCue(cue);
}

bool IsGuarded(const Control& control) {
    return control.guard != kNoVariable;
}

bool IsFree(const Control& control) {
    return !IsGuarded(control) || *ShadowOf(control.guard) != 0;
}

// A move that the end stop, the guard or the follower refuses makes no sound.
void MoveTo(const Control& control, int position) {
    int& shadow = *control.shadow;
    const int before = shadow;
    if (IsFree(control) && position != before) {
        shadow = position;
        Follow(control, before);
        if (shadow != before) Ask(CueOf(control));
    }
    ShowControl(&shadow);
}

// A position that has been set from outside may be any number.
int WithinEnds(const Control& control, int position) {
    return std::clamp(position, control.min, control.max);
}

void Step(const Control& control, int step) {
    MoveTo(control, std::clamp(WithinEnds(control, *control.shadow) + step, control.min, control.max));
}

void Toggle(const Control& control) {
    MoveTo(control, *control.shadow == 0 ? 1 : 0);
}

void Press(const Control& control, int value) {
    Follow(control, value);
    Ask(control.cue);
    WriteNamedVar(control.variable, 0);
}

void Turn(const Control& control, int position, int step) {
    *control.shadow = position;
    Follow(control, step);
    Ask(control.cue);
    ShowControl(control.shadow);
}

int TurnedBy(const Control& control, double from, double to) {
    if (from == control.max && to == control.min) return 1;
    if (from == control.min && to == control.max) return -1;
    return to > from ? 1 : -1;
}

int Wrapped(const Control& control, int position) {
    return position > control.max ? control.min : position < control.min ? control.max : position;
}

}  // namespace

void ClickControl(const Control& control, std::uint32_t mouse_flag) {
    const bool right = mouse_flag == kMouseRightSingle;
    const int step = right ? 1 : -1;
    if (right && IsGuarded(control)) return Toggle(*FindControl(control.guard));
    switch (control.kind) {
        case ControlClass::kLatching:
        case ControlClass::kKnob:
        case ControlClass::kGuard:
            Toggle(control);
            break;
        case ControlClass::kMomentary:
            Press(control, right ? 2 : 1);
            break;
        case ControlClass::kSwitch:
            if (control.turns_over)
                MoveTo(control, Wrapped(control, WithinEnds(control, *control.shadow) + step));
            else
                Step(control, step);
            break;
        case ControlClass::kRotary:
            Turn(control, Wrapped(control, WithinEnds(control, *control.shadow) + step), step);
            break;
        case ControlClass::kOneWay:
            MoveTo(control, 1);
            break;
        case ControlClass::kMirrored:
            break;
    }
}

void ClickControl(NamedVarRef variable, std::uint32_t mouse_flag) {
    if (const Control* control = FindControl(variable)) ClickControl(*control, mouse_flag);
}

void PollControl(const Control& control) {
    double value = 0;
    if (!ReadNamedVar(control.variable, value)) return;  // 0 is then no position
    if (!std::isfinite(value)) {
        WriteNamedVar(control.variable, control.shadow != nullptr ? *control.shadow : 0);
        return;
    }
    if (control.kind == ControlClass::kMomentary) {
        if (value != 0) Press(control, WholeNumber(value));
        return;
    }
    const int before = *control.shadow;
    if (control.kind == ControlClass::kMirrored) {
        *control.shadow = WholeNumber(value);
        Follow(control, before);
        return;
    }
    if (value == before) return;
    switch (control.kind) {
        case ControlClass::kSwitch:
            Step(control, value > before ? 1 : -1);
            break;
        case ControlClass::kRotary:
            Turn(control, Wrapped(control, WholeNumber(value)), TurnedBy(control, before, value));
            break;
        case ControlClass::kOneWay:
            MoveTo(control, 1);
            break;
        default:
            Toggle(control);
            break;
    }
}

void PollControls(int phase) {
    const unsigned now = 1u << phase;
    for (const PollSet& set : PollSets())
        if ((set.phases & now) != 0)
            for (const Control& control : set.controls) PollControl(control);
}
