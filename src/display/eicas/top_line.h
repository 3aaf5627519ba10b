#pragma once

#include "display/eicas/eicas_words.h"

/// The line above the dials: air temperature, thrust limit, assumed temperature.
void DrawTopLine(Graphics& graphics);

/// What an engine's start and its reverser are doing.
void DrawEngineState(Graphics& graphics, const EngineView& engine);
