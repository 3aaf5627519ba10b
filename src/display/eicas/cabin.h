#pragma once

#include "display/eicas/eicas_words.h"

/// Cabin pressure and the outflow valves, while something asks for them and no system page shows them.
void DrawCabin(Graphics& graphics);
