#pragma once

#include "display/synoptics/sys_words.h"

void DrawFctlPage(const SysPage& page);
