#pragma once

#include "display/synoptics/sys_words.h"

void DrawGearPage(const SysPage& page);
