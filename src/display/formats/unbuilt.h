#pragma once

#include "display/formats/format.h"

// What stands for a screen or format that isn't built yet: its name in the middle of its place, so that
// routing can be seen, and that it isn't there.

void DrawName(Graphics& graphics, double middle, double height, const char* name);
void DrawFormatName(Graphics& graphics, const ContentPlace& place, const char* name);
