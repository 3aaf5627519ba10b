#pragma once

#include "display/synoptics/sys_words.h"

/// The backup of a side's EFIS control panel and display select panel; its keys do what the panels' own do.
void DrawEfisDspPage(const SysPage& page);
void TouchEfisDspPage(const FormatTouch& at);
