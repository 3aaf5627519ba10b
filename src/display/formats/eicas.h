#pragma once

#include "display/formats/format.h"

/// Engine indication and crew alerting.
void DrawEicas(Graphics& graphics, const ContentPlace& place);
