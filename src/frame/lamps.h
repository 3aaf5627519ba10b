#pragma once

#include <span>

#include "frame/named_variables.h"

// Lamps of the cockpit. The host is told of a lamp only when it changes.

/// One lamp: the variable that shows it, and when it burns.
struct Lamp {
    NamedVarRef variable;
    bool (*lit)();
};

void ShowLamp(NamedVarRef lamp, bool lit);

/// Shows each lamp of a panel as it should be now.
void ShowLamps(std::span<const Lamp> lamps);
