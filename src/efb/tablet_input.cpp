#include "efb/tablet_input.h"

#include <algorithm>

void PressTabletKey(int side, EfbKey key) {
    EfbOf(side).pending_key = key;
}

void TouchTablet(int side, int x, int y) {
    EfbSide& tablet = EfbOf(side);
    tablet.EfbMouseX = x;
    tablet.EfbMouseY = y;
    tablet.touch_pending = 1;
}

void ChangeTabletBrightness(int steps) {
    constexpr double kStep = 0.1;
    efb.EfbBrightness = std::clamp(efb.EfbBrightness + steps * kStep, 0.0, 1.0);
}
