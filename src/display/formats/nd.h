#pragma once

#include "display/formats/format.h"

/// The navigation display. A press picks a point of the map where one is asked for; else the keys take it.
void DrawNd(Graphics& graphics, const ContentPlace& place);
void TouchNd(const FormatTouch& at);
