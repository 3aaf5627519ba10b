#pragma once

#include "display/eicas/eicas_words.h"

/// Oil and vibration of an engine, in a frame beside its column.
void DrawSecondary(Graphics& graphics, const EngineView& engine);

/// The fuel flows, in the frame of the dials, and the names that both engines' secondary data share.
void DrawFuelFlow(Graphics& graphics, const EngineView& engine);
void DrawSecondaryNames(Graphics& graphics);
