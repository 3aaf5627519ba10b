#pragma once

#include "display/synoptics/sys_words.h"

void DrawHydPage(const SysPage& page);
