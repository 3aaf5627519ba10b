#pragma once

#include <span>

#include "frame/named_variables.h"
#include "state/cockpit.h"

/// One control of the cockpit: the variable that shows it and the shadow that holds its position.
struct CockpitControl {
    NamedVarRef variable;
    int CockpitState::*shadow;
};

std::span<const CockpitControl> CockpitControls();

/// Writes each control's shadow into its named variable, so that the model agrees with it.
void WriteControlVariables();
