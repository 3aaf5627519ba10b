#pragma once

#include "efb/words/face.h"

void SendPage(TabletFace& face);
