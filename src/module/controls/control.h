#pragma once

#include <string_view>

#include "frame/cues.h"
#include "frame/named_variables.h"

// One control of the cockpit as a row of a table: the named variable that shows it, how it moves, and what a
// move brings about. Where its position is kept tells the catalogue of named variables. What kinds of control
// share - how a click moves them, what a guard allows, the write-back, the cue - stands in operate.cpp, once.

enum class ControlClass {
    kLatching,   // a button that stays in or out
    kMomentary,  // a key that springs back; it has no position
    kSwitch,     // several positions between two ends
    kRotary,     // turns without end: beyond either end comes the other
    kKnob,       // two positions
    kOneWay,     // a button under a guard that stays in once pressed
    kGuard,      // a guard or cover: 0 shut, 1 open
    kMirrored,   // the model's own: read and copied, never written
};

/// What a move brings about. It is called when the shadow stands at the new position, with the position
/// before; it may refuse the move by putting the old position back. A momentary key gives 1 for a left and 2
/// for a right click, or what the model wrote; a rotary gives its step, 1 or -1. A mirrored control calls it
/// at each poll.
using ControlFollower = void (*)(int before);

/// A follower that only tells whose control has been moved: On<kCaptain, ToggleNdCentre>.
template <int kSide, void (*kAct)(int side)>
void On(int) {
    kAct(kSide);
}

struct Control {
    NamedVarRef variable;  // shows it; written by the model's click spots
    ControlClass kind;
    int* shadow;  // its position, the truth for all logic; null for a momentary key
    int cue;      // asked for at each move; 0 = silent. A guard shuts with the cue behind it
    ControlFollower follow = nullptr;
    int min = 0, max = 1;             // end positions
    NamedVarRef guard = kNoVariable;  // of the guard that must be open
    bool kept_by_model = false;       // the model knows its position when the aircraft loads
    bool turns_over = false;          // a click beyond an end goes to the other
};

// Rows by their class. A name that the catalogue lacks, or that has no position there, doesn't compile.

consteval Control WithPosition(std::string_view name, ControlClass kind, int cue, ControlFollower follow) {
    const NamedVarRef variable = NamedVar(name);
    if (ShadowOf(variable) == nullptr) throw "the catalogue doesn't tell where its position is kept";
    return {variable, kind, ShadowOf(variable), cue, follow};
}
consteval Control WithEnds(Control control, int min, int max) {
    control.min = min;
    control.max = max;
    return control;
}
consteval Control WithGuard(Control control, std::string_view guard) {
    control.guard = NamedVar(guard);
    if (ShadowOf(control.guard) == nullptr) throw "a guard has a position";
    return control;
}

consteval Control Latching(std::string_view name, ControlFollower follow = nullptr, int cue = kCueButton) {
    return WithPosition(name, ControlClass::kLatching, cue, follow);
}
/// A latching button under a guard, which stays as it is while the guard is shut.
consteval Control UnderGuard(std::string_view name, std::string_view guard,
                             ControlFollower follow = nullptr) {
    return WithGuard(Latching(name, follow), guard);
}
consteval Control OneWay(std::string_view name, std::string_view guard) {
    return WithGuard(WithPosition(name, ControlClass::kOneWay, kCueButton, nullptr), guard);
}
consteval Control Guard(std::string_view name) {
    return WithPosition(name, ControlClass::kGuard, kCueGuardOpen, nullptr);
}
consteval Control Cover(std::string_view name) {
    return WithPosition(name, ControlClass::kGuard, kCueCoverOpen, nullptr);
}
consteval Control Switch(std::string_view name, int min, int max, ControlFollower follow = nullptr,
                         int cue = kCueSwitch) {
    return WithEnds(WithPosition(name, ControlClass::kSwitch, cue, follow), min, max);
}
consteval Control Knob(std::string_view name, ControlFollower follow = nullptr) {
    return WithPosition(name, ControlClass::kKnob, kCueSwitch, follow);
}
/// A turning knob stands at 0 to 18.
consteval Control Rotary(std::string_view name, ControlFollower follow) {
    return WithEnds(WithPosition(name, ControlClass::kRotary, 0, follow), 0, 18);
}
consteval Control Mirrored(std::string_view name, ControlFollower follow = nullptr, int min = 0,
                           int max = 1) {
    return WithEnds(WithPosition(name, ControlClass::kMirrored, 0, follow), min, max);
}
consteval Control Momentary(std::string_view name, ControlFollower follow, int cue = 0) {
    const NamedVarRef variable = NamedVar(name);
    if (ShadowOf(variable) != nullptr) throw "a key springs back";
    if (follow == nullptr) throw "a key that does nothing";
    return {variable, ControlClass::kMomentary, nullptr, cue, follow};
}
/// A key that gives its act the click of keys.
consteval Control Key(std::string_view name, ControlFollower follow) {
    return Momentary(name, follow, kCueKeyClick);
}
/// A switch of which one click makes the whole round.
consteval Control TurnsOver(Control control) {
    control.turns_over = true;
    return control;
}
consteval Control KeptByModel(Control control) {
    control.kept_by_model = true;
    return control;
}
