#include "display/formats/nd.h"

#include "base/area.h"
#include "display/nd/nd_keys.h"
#include "display/nd/nd_picture.h"
#include "display/routing/modes.h"
#include "state/displays.h"
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
    if (at.y <= kMapBottom && NdOf(at.side).nd_pick_pending == 1)
        return OnNdMapPress(at.side, DisplayModeOf(at.unit) == kModeWideNd, at.x, at.y);
    for (const Area& area : kKeys)
        if (area.Has(at.x, at.y)) return OnNdKey(at.side, at.x, at.y);
}
