#pragma once

#include "efb/words/face.h"
#include "paint/graphics.h"

/// Paints a face in the tablet's own brightness, with a frame around what its side has just touched.
void DrawFace(Graphics& graphics, const TabletFace& face);
