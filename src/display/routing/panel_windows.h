#pragma once

/// Which cockpit is shown: the 2D panel while its main window is visible. The two windows of the panel
/// exclude each other.
void WatchPanelWindows();
