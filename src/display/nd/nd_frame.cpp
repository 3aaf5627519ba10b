#include "display/nd/nd_frame.h"

#include "base/angles.h"
#include "display/routing/nd_controls.h"
#include "paint/recording.h"
#include "state/cockpit.h"
#include "state/irs.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kHalfWidth = 141;  // of half a unit

void PlaceMapCentre(const NdSide& settings, MapView& view) {
    view.lat = sim.plane_lat;
    view.lon = sim.plane_lon;
    if (settings.plan_lat != 0 || settings.plan_lon != 0) {
        view.lat = settings.plan_lat;
        view.lon = settings.plan_lon;
        return;
    }
    const RouteVersion& route = IsRouteActive() ? plan.active : plan.mod;
    if (settings.plan_step < 0 || settings.plan_step > route.leg_cnt) return;
    const FlightPlanLeg& leg = route.legs[settings.plan_step];
    if (!IsPlace(leg)) return;
    view.lat = leg.lat;
    view.lon = leg.lon;
}

// The part of the map that an arc bounds, from a bearing left of the top to the same right of it; down to
// `foot` behind the aircraft.
void ClipToArc(Graphics& graphics, int radius, int half_width, double start, double sweep, int shoulder) {
    constexpr int kFoot = 50;
    GraphicsPath& path = ScratchPath(graphics);
    GdipAddPathArcI(path, -radius, -radius - 1, 2 * radius, 2 * radius, start, sweep);
    GdipAddPathLineI(path, half_width, shoulder, half_width, kFoot);
    GdipAddPathLineI(path, -half_width, kFoot, -half_width, shoulder);
    GdipClosePathFigure(path);
    GdipSetClipPath(graphics, path);
}

void ClipToBox(Graphics& graphics, int left, int top, int right, int bottom) {
    GraphicsPath& path = ScratchPath(graphics);
    GdipAddPathRectangleI(path, left, top, right - left, bottom - top);
    GdipSetClipPath(graphics, path);
}

}  // namespace

double HeadingReference::Of(double true_bearing) const {
    return is_true ? true_bearing : true_bearing - sim.mgvar;
}

double HeadingReference::Magnetic(double bearing) const {
    return is_true ? bearing + sim.mgvar : bearing;
}

HeadingReference HeadingReferenceInUse() {
    HeadingReference reference;
    reference.is_true = cockpit.TZ_OH_HDG_REF_Button == 1;
    reference.is_track = cockpit.hdg_trk_mode == 1;
    const double magnetic = reference.is_track ? sim.mag_track_deg : sim.mag_hdg;
    if (reference.is_true)
        reference.up = reference.up_true = reference.is_track ? sim.true_track_deg : sim.true_hdg;
    else {
        reference.up = magnetic;
        reference.up_true = FoldBearing(magnetic + sim.mgvar);
    }
    return reference;
}

NdFrame MakeNdFrame(int side, int half, bool wide) {
    const NdSide& settings = NdOf(side);
    NdFrame frame;
    frame.side = side;
    frame.wide = wide;
    frame.irs_on = IsIrsOn();
    frame.in_plan = settings.nd_mode == kNdPlan;
    frame.centred = !frame.in_plan && settings.nd_ctr == 1;
    frame.vsd = !frame.in_plan && settings.nd_vsd == 1;
    frame.reference = HeadingReferenceInUse();
    frame.radius = frame.in_plan ? 240 : frame.Pick(300, 90, 180, 45);

    MapView& view = frame.view;
    view.range = SelectedRange(side);
    view.scale = frame.radius / (frame.centred ? view.range / 2 : view.range);
    view.centre_x = wide ? 2 * kHalfWidth : half == 2 ? 3 * kHalfWidth : kHalfWidth;
    view.centre_y = frame.in_plan ? 213 : frame.Pick(356, 213, 235, 158);
    const double half_width = wide ? 2 * kHalfWidth : kHalfWidth;
    const double top = frame.in_plan ? -165 : frame.Pick(-301, -167, -181, -135);
    const double bottom = frame.in_plan ? 165 : frame.Pick(50, 211, 50, 95);
    view.seen = {-half_width, top, half_width, bottom};
    if (frame.in_plan) {
        PlaceMapCentre(settings, view);
    } else {
        view.lat = sim.plane_lat;
        view.lon = sim.plane_lon;
        view.up = frame.reference.up_true;
    }
    OrientMap(view);
    return frame;
}

void ClipToMap(Graphics& graphics, const NdFrame& frame) {
    const MapBox& seen = frame.view.seen;
    if (!frame.Arc())
        ClipToBox(graphics, static_cast<int>(seen.left), static_cast<int>(seen.top),
                  static_cast<int>(seen.right), static_cast<int>(seen.bottom));
    else if (frame.vsd && frame.wide)
        ClipToArc(graphics, 180, 180, 180, 180, -1);
    else if (frame.vsd)
        ClipToArc(graphics, 180, 141, 218, 103, -113);
    else if (frame.wide)
        ClipToArc(graphics, 300, 282, 200, 140, -103);
    else
        ClipToArc(graphics, 300, 141, 242, 56, -265);
}

void ClipToCompass(Graphics& graphics, const NdFrame& frame) {
    constexpr int kTop = -310, kFoot = 50;
    const int half_width = frame.wide ? 2 * kHalfWidth : kHalfWidth;
    ClipToBox(graphics, -half_width, kTop, half_width, kFoot);
}

bool IsIrsOn() {
    return irs.irs_left == 1 || irs.irs_right == 1;
}
