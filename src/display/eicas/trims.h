#pragma once

#include "display/eicas/eicas_words.h"

/// Stabiliser and rudder trim: on the ground, and in flight while there is something to see.
void DrawTrims(Graphics& graphics);
