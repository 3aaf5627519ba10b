#pragma once

#include "display/synoptics/sys_words.h"

/// The list of circuit protection, in the order that its keys choose.
void DrawCbPage(const SysPage& page);
void TouchCbPage(const FormatTouch& at);
