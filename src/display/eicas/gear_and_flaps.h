#pragma once

#include "display/eicas/eicas_words.h"

void DrawGear(Graphics& graphics);
void DrawFlaps(Graphics& graphics);
