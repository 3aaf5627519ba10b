#pragma once

#include "paint/graphics.h"

// What the screens show, drawn into their logical frames.

/// A Display Unit's picture by its mode. A call for a gauge whose composition is under way returns at once.
void ComposeDisplayUnit(Graphics& graphics, int mode, int unit, int gauge_id);

void DrawStandbyPfd(Graphics& graphics);
void DrawHud(Graphics& graphics);
void DrawEfb(Graphics& graphics, int side);
void DrawDebug(Graphics& graphics);
