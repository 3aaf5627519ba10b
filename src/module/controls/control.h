#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "frame/cues.h"
#include "frame/named_variables.h"

// One control of the cockpit as a row of a table. What kinds of control share - how a click moves them, what
// a guard allows, the write-back, the cue - stands in operate.cpp, once.

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

struct Control {
    NamedVarRef variable = {};  // shows it; written by the model's click spots
    int* shadow = nullptr;      // its position, the truth for all logic; null for a momentary key
    ControlClass kind = ControlClass::kMomentary;
    int min = 0, max = 1;        // end positions
    const int* guard = nullptr;  // shadow of the guard that must be open
    int cue = 0;                 // asked for at each move; 0 = silent. A guard shuts with the cue behind it
    ControlFollower follow = nullptr;
    bool kept_by_model = false;  // the model knows its position when the aircraft loads
};

// Rows by their class.

constexpr Control Latching(NamedVarRef variable, int* shadow, ControlFollower follow = nullptr) {
    return {variable, shadow, ControlClass::kLatching, 0, 1, nullptr, kCueButton, follow};
}
/// A latching button under a guard, which stays as it is while the guard is shut.
constexpr Control UnderGuard(NamedVarRef variable, int* shadow, const int* guard,
                             ControlFollower follow = nullptr) {
    return {variable, shadow, ControlClass::kLatching, 0, 1, guard, kCueButton, follow};
}
constexpr Control OneWay(NamedVarRef variable, int* shadow, const int* guard,
                         ControlFollower follow = nullptr) {
    return {variable, shadow, ControlClass::kOneWay, 0, 1, guard, kCueButton, follow};
}
constexpr Control Guard(NamedVarRef variable, int* shadow) {
    return {variable, shadow, ControlClass::kGuard, 0, 1, nullptr, kCueGuardOpen};
}
constexpr Control Cover(NamedVarRef variable, int* shadow) {
    return {variable, shadow, ControlClass::kGuard, 0, 1, nullptr, kCueCoverOpen};
}
constexpr Control Switch(NamedVarRef variable, int* shadow, int min, int max,
                         ControlFollower follow = nullptr, int cue = kCueSwitch) {
    return {variable, shadow, ControlClass::kSwitch, min, max, nullptr, cue, follow};
}
constexpr Control Knob(NamedVarRef variable, int* shadow, ControlFollower follow = nullptr) {
    return {variable, shadow, ControlClass::kKnob, 0, 1, nullptr, kCueSwitch, follow};
}
constexpr Control Rotary(NamedVarRef variable, int* shadow, int max, ControlFollower follow) {
    return {variable, shadow, ControlClass::kRotary, 0, max, nullptr, 0, follow};
}
/// A key that gives its act the click of keys.
constexpr Control Key(NamedVarRef variable, ControlFollower follow) {
    return {variable, nullptr, ControlClass::kMomentary, 0, 1, nullptr, kCueKeyClick, follow};
}
constexpr Control Momentary(NamedVarRef variable, ControlFollower follow) {
    return {variable, nullptr, ControlClass::kMomentary, 0, 1, nullptr, 0, follow};
}
constexpr Control Mirrored(NamedVarRef variable, int* shadow, ControlFollower follow = nullptr, int min = 0,
                           int max = 1) {
    return {variable, shadow, ControlClass::kMirrored, min, max, nullptr, 0, follow};
}
constexpr Control KeptByModel(Control control) {
    control.kept_by_model = true;
    return control;
}

/// One table of several.
template <std::size_t... kSizes>
constexpr auto JoinTables(const std::array<Control, kSizes>&... tables) {
    std::array<Control, (kSizes + ...)> joined{};
    auto end = joined.begin();
    ((end = std::copy(tables.begin(), tables.end(), end)), ...);
    return joined;
}
