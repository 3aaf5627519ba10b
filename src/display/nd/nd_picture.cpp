#include "display/nd/nd_picture.h"

#include "display/nd/compass_rose.h"
#include "display/nd/nd_frame.h"
#include "display/nd/nd_header.h"
#include "display/nd/route_line.h"
#include "state/autoflight.h"
#include "state/cfg.h"

namespace {

// LNAV, LOC, the roll-out and the final approach course all follow a track.
bool IsTrackFollowed() {
    const auto follows = [](int mode) { return mode == 6 || mode == 7 || mode == 10 || mode == 11; };
    return follows(autoflight.ap_lat_mode) || follows(autoflight.ap_lat_mode_armed);
}

void DrawMap(Graphics& graphics, const NdFrame& frame) {
    if (cfg.DrawDirectRteLines == 1) DrawDirectLines(graphics, frame.view);
    DrawRouteLines(graphics, frame.view, frame.vsd && IsTrackFollowed());
}

}  // namespace

void DrawNdPicture(Graphics& graphics, int side, int half, bool wide) {
    const NdFrame frame = MakeNdFrame(side, half, wide);
    EnterMapFrame(graphics, frame.view);
    GdipSetClipPath(graphics, MapClip(frame));
    if (frame.irs_on) {
        DrawRose(graphics, frame);
        DrawMap(graphics, frame);
    }
    if (!frame.in_plan && frame.irs_on) {
        DrawBearingPointers(graphics, frame);
        GdipSetClipPath(graphics, CompassClip(frame));
        DrawHeadingMarks(graphics, frame);
    }
    GdipResetClip(graphics);
    DrawNdHeader(graphics, frame);
}
