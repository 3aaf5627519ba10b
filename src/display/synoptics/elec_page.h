#pragma once

#include "display/synoptics/sys_words.h"

void DrawElecPage(const SysPage& page);
