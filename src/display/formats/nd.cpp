#include "display/formats/nd.h"

#include "base/area.h"
#include "display/formats/touch.h"
#include "display/nd/nd_picture.h"
#include "display/routing/modes.h"
#include "state/nd.h"

void DrawNd(Graphics& graphics, const ContentPlace& place) {
    DrawNdPicture(graphics, place.side, place.half, place.mode == kModeWideNd);
}

void TouchNd(const FormatTouch& at) {
    constexpr int kMapBottom = 379;
    constexpr Area kKeys[] = {
        {7, 273, 0, 24},       // top strip
        {218, 276, 34, 256},   // menu
        {226, 257, 297, 312},  // its EXIT
        {7, 278, 394, 416},    // keys of PLAN
    };
    NdSide& map = NdOf(at.side);
    if (at.y <= kMapBottom && map.nd_pick_pending == 1) {
        map.nd_pick_taken = 1;
        map.nd_cursor_x = at.x;
        map.nd_cursor_y = at.y;
        return;
    }
    for (const Area& area : kKeys)
        if (area.Has(at.x, at.y)) return LeaveClick(displays.nd_click, at);
}
