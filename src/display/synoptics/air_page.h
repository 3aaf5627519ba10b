#pragma once

#include "display/synoptics/sys_words.h"

void DrawAirPage(const SysPage& page);
