#pragma once

#include "display/eicas/eicas_words.h"

/// The column of dials of an engine, with its readouts.
void DrawDials(Graphics& graphics, const EngineView& engine);

/// The names of the dials, between the two columns.
void DrawDialNames(Graphics& graphics);
