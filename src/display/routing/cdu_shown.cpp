#include "display/routing/cdu_shown.h"

#include "display/routing/modes.h"
#include "state/displays.h"

bool IsCduShown(int side) {
    for (int unit = 1; unit <= 5; ++unit) {
        const auto contents = ContentsOf(DisplayModeOf(unit));
        if (!contents) continue;
        if (contents->left == Content::kCdu && SideOf(unit, 1) == side) return true;
        if (contents->right == Content::kCdu && SideOf(unit, 2) == side) return true;
    }
    return false;
}
