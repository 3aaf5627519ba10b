#pragma once

#include "display/eicas/eicas_words.h"

/// The crew alerting messages: warnings, cautions, advisories, and memos at the foot.
void DrawMessages(Graphics& graphics);
