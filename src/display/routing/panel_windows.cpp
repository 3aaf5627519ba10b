#include "display/routing/panel_windows.h"

#include "platform/host.h"
#include "state/displays.h"

void WatchPanelWindows() {
    constexpr int kMainPanel = 0, kSecondPanel = 37;
    displays.cockpit_2d_active = IsWindowVisible(kMainPanel) != 0 ? 1 : 0;
    if (displays.cockpit_2d_active == 1 && IsWindowVisible(kSecondPanel) != 0) ToggleWindow(kMainPanel);
}
