#pragma once

#include "efb/words/face.h"

// Pages that aren't built yet: they say so.

void TerminalChartsPage(TabletFace& face);
void RouteEntryPage(TabletFace& face);
void DispatchPage(TabletFace& face);
