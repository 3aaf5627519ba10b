#include "display/nd/nd_picture.h"

#include "display/nd/aircraft_marks.h"
#include "display/nd/compass_rose.h"
#include "display/nd/fix_rings.h"
#include "display/nd/hold_layer.h"
#include "display/nd/later_layers.h"
#include "display/nd/nd_frame.h"
#include "display/nd/nd_header.h"
#include "display/nd/nd_keys.h"
#include "display/nd/place_layers.h"
#include "display/nd/plan_cursor.h"
#include "display/nd/route_line.h"
#include "display/nd/route_marks.h"
#include "paint/painter.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"

namespace {

// LNAV, LOC, the final approach course and what follows them keep to a track.
bool IsTrackFollowed() {
    const auto follows = [](int mode) {
        return mode == kLatLnav || mode == kLatLoc || mode == kLatFac || mode == 11;
    };
    return follows(autoflight.ap_lat_mode) || follows(autoflight.ap_lat_mode_armed);
}

// What the vertical situation display shows when no track is followed: the strip straight ahead.
void DrawStripAhead(Graphics& graphics, const NdFrame& frame) {
    Pen pen = GdipCreatePen1(Scaled(kCyan), 1);
    GdipSetPenDashStyle(pen, 1);
    const int y = frame.centred ? -90 : -180;
    for (const int x : {-8, 8}) GdipDrawLineI(graphics, pen, x, 0, x, y);
}

// What lies under all else.
void DrawGround(Graphics& graphics, const NdFrame& frame) {
    constexpr double kLeastRadarRange = 10, kLargestAirportRange = 5;
    const NdSide& settings = NdOf(frame.side);
    if (!frame.in_plan && frame.view.range >= kLeastRadarRange) {
        if (settings.nd_wxr == 1 || settings.nd_wxr == 2) DrawWeather(graphics, frame);
        if (settings.nd_terr == 1 || settings.nd_terr == 2) DrawTerrainDots(graphics, frame);
    }
    if (frame.view.range <= kLargestAirportRange) DrawAirportMap(graphics, frame);
}

bool IsTrafficShown(const NdFrame& frame) {
    constexpr int kTaOnly = 3;
    const int choice = NdOf(frame.side).nd_tfc;
    return !frame.in_plan && (choice == 1 || choice == 2) && cockpit.TZ_AFT_Transponder_Knob >= kTaOnly;
}

void DrawPlaces(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    const double range = frame.view.range;
    if (range >= 10 && range <= 640) DrawStations(graphics, frame);
    if (settings.nd_apt == 1) DrawAirports(graphics, frame);
    if (settings.nd_apt == 1 || frame.in_plan) DrawRouteAirports(graphics, frame.view);
    if (settings.nd_wpt == 1 && range <= 40) DrawFixes(graphics, frame);
}

void DrawRoute(Graphics& graphics, const NdFrame& frame) {
    const MapView& view = frame.view;
    if (cfg.DrawDirectRteLines == 1) DrawDirectLines(graphics, view);
    DrawRouteLines(graphics, view, frame.vsd && IsTrackFollowed());
    DrawRouteLabels(graphics, frame);
    DrawRunways(graphics, view);
    DrawAimingPoint(graphics, view);
    if (!frame.in_plan) DrawVnavPoints(graphics, view);
}

// The layers, from the ground up.
void DrawMap(Graphics& graphics, const NdFrame& frame) {
    DrawGround(graphics, frame);
    if (frame.vsd && !IsTrackFollowed()) DrawStripAhead(graphics, frame);
    DrawRose(graphics, frame);
    DrawPlaces(graphics, frame);
    DrawRoute(graphics, frame);
    DrawFixRings(graphics, frame.view);
    if (IsTrafficShown(frame)) DrawTraffic(graphics, frame);
    if (!frame.in_plan) DrawTrendVector(graphics, frame.view.scale, frame.view.range);
    DrawHolds(graphics, frame.view);
    if (frame.in_plan) return;
    DrawAltitudeRangeArc(graphics, frame.view.scale);
    DrawRangeMarks(graphics, frame);
    DrawBearingPointers(graphics, frame);
}

}  // namespace

void DrawNdPicture(Graphics& graphics, int side, int half, bool wide) {
    const NdFrame frame = MakeNdFrame(side, half, wide);
    EnterMapFrame(graphics, frame.view);
    ClipToMap(graphics, frame);
    if (frame.irs_on) DrawMap(graphics, frame);
    if (!frame.in_plan || frame.irs_on) DrawAircraft(graphics, frame);
    if (frame.irs_on && !frame.in_plan) {
        ClipToCompass(graphics, frame);
        DrawHeadingMarks(graphics, frame);
        GdipResetClip(graphics);
        DrawTopBox(graphics, frame);
    }
    if (frame.irs_on && frame.in_plan) DrawPlanCursor(graphics, frame);
    GdipResetClip(graphics);
    if (frame.vsd) DrawVsd(graphics, frame);
    DrawNdHeader(graphics, frame);
    DrawNdKeys(graphics, frame);
}
