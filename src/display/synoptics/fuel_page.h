#pragma once

#include "display/synoptics/sys_words.h"

void DrawFuelPage(const SysPage& page);
