#pragma once

#include <string_view>

#include "efb/words/face.h"

void TakeoffPage(TabletFace& face);

/// Takes a typed text: 1 wind, 2 OAT, 3 QNH, 4 weight, 5 intersection, 7 centre of gravity.
void CommitTakeoffField(int field, std::string_view text);
