#pragma once

#include "efb/words/face.h"

void MainMenuPage(TabletFace& face);

/// The rows of MAIN MENU, beside the line keys of the bezel.
constexpr int kMenuRows[8] = {50, 103, 156, 205, 261, 313, 367, 420};
