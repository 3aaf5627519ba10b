#pragma once

#include <string_view>

#include "efb/words/face.h"

void LandingPage(TabletFace& face);

/// Takes a typed text: 1 wind, 2 OAT, 3 QNH, 4 weight, 5 VREF ADD.
void CommitLandingField(int field, std::string_view text);
