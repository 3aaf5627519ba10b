#include "efb/tablet_input.h"

#include <algorithm>

#include "efb/tablet.h"
#include "efb/words/keyboard.h"
#include "platform/panel_gauges.h"

void PressTabletKey(int side, EfbKey key) {
    EfbOf(side).pending_key = key;
}

void OnEfbTouch(int x, int y, int side, unsigned flags) {
    constexpr int kFramedTicks = 5;
    if (!IsTabletLit(side)) return;
    EfbSide& tablet = EfbOf(side);
    tablet.EfbMouseX = x;
    tablet.EfbMouseY = y;
    if ((flags & (kMouseLeftSingle | kMouseRightSingle)) == 0) return;
    tablet.touch_ticks = kFramedTicks;
    PressFace(side, x, y);
}

void TypeOnTablet(int side, char key) {
    if (!IsTabletLit(side)) return;
    if (key == '\n')
        CloseEditedField();
    else
        TypeCharacter(key);
}

void ChangeTabletBrightness(int steps) {
    constexpr double kStep = 0.1;
    efb.EfbBrightness = std::clamp(efb.EfbBrightness + steps * kStep, 0.0, 1.0);
}
