#pragma once

#include "display/synoptics/sys_words.h"

void DrawDoorPage(const SysPage& page);
