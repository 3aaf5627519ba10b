#pragma once

#include "display/nd/nd_frame.h"

// The keys on a navigation display: the strip on top, the menu column, and in PLAN those that move the map.

void DrawNdKeys(Graphics& graphics, const NdFrame& frame);

/// A press at a point of a side's display, from the upper left corner of its half (of the middle half of a
/// wide one). A menu that is closed takes none.
void OnNdKey(int side, int x, int y);

/// A press on the map while a point of it is asked for: CTR ON centres PLAN there, PICK WPT puts it on the
/// side's scratchpad, CURSOR moves there.
void OnNdMapPress(int side, bool wide, int x, int y);
