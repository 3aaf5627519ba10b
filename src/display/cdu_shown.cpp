#include "display/cdu_shown.h"

#include "cdu/items.h"
#include "display/modes.h"
#include "state/displays.h"

bool IsCduShown(int side) {
    const int modes[] = {displays.du_capt_outb_mode, displays.du_capt_inb_mode, displays.du_fo_inb_mode,
                         displays.du_fo_outb_mode, displays.du_lower_mode};
    for (int unit = 1; unit <= 5; ++unit) {
        const auto contents = ContentsOf(modes[unit - 1]);
        if (!contents) continue;
        if (contents->left == Content::kCdu && CduSideOf(unit, 1) == side) return true;
        if (contents->right == Content::kCdu && CduSideOf(unit, 2) == side) return true;
    }
    return false;
}
