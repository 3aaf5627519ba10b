#include "display/formats/checklist.h"

#include "base/area.h"
#include "display/formats/touch.h"
#include "display/formats/unbuilt.h"

void DrawChecklist(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "CHKL");
}

void TouchChecklist(const FormatTouch& at) {
    constexpr int kTabsBottom = 22;
    constexpr Area kSoftKeys = {0, 282, 383, 412};
    if (at.y <= kTabsBottom || kSoftKeys.Has(at.x, at.y)) LeaveClick(displays.chkl_click, at);
}
