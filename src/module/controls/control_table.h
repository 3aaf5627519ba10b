#pragma once

#include <span>

#include "module/controls/control.h"

/// The controls that are polled together.
struct PollSet {
    const char* name;
    unsigned phases;  // bit n: polled at tick_phase n
    std::span<const Control> controls;
};

/// Every control of the cockpit, in the order in which one poll goes through them.
std::span<const PollSet> PollSets();

/// The control of a named variable; null for one that is no control's.
const Control* FindControl(NamedVarRef variable);

/// The word for a class as the inspection table has it.
const char* ClassName(ControlClass kind);

/// Writes what the system keeps of each control and lamp into its named variable, so that the model agrees
/// with it. What the model knows better is left out.
void WriteControlVariables();
