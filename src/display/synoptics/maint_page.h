#pragma once

#include "display/synoptics/sys_words.h"

void DrawMaintPage(const SysPage& page);
