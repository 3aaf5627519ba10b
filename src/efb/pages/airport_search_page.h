#pragma once

#include <string_view>

#include "efb/words/face.h"

void AirportSearchPage(TabletFace& face);

/// Takes a typed text: 1 how the idents begin that are looked for.
void CommitSearchField(int field, std::string_view text);
