#include "display/pfd/compass.h"

#include "display/nd/compass_rose.h"
#include "display/nd/route_line.h"
#include "display/routing/nd_controls.h"
#include "state/sim.h"

namespace {

constexpr double kRoseInner = 62, kRose = 70;

const GraphicsPath& InsideOfRose() {
    static const GraphicsPath circle = [] {
        GraphicsPath path = GdipCreatePath();
        GdipAddPathArcI(path, -62, -62, 124, 124, 0, 360);
        GdipClosePathFigure(path);
        return path;
    }();
    return circle;
}

void DrawSmallMap(const PfdView& view) {
    MapView map;
    map.lat = sim.plane_lat;
    map.lon = sim.plane_lon;
    map.up = Bounded(sim.true_hdg, 0, 360);
    map.range = SelectedRange(view.side);
    map.scale = kRoseInner / (map.range / 2);
    map.seen = {-kRoseInner, -kRoseInner, kRoseInner, kRoseInner};
    OrientMap(map);
    constexpr bool kWithoutCorridor = false;
    GdipSetClipPath(view.graphics, InsideOfRose());
    DrawRouteLines(view.graphics, map, kWithoutCorridor);
    GdipResetClip(view.graphics);
}

void DrawSelected(Graphics& graphics, double heading) {
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, Bounded(sim.ap_hdgbug, 0, 360) - heading);
    const Pen pen = PenOf(kPfdMagenta);
    GdipDrawLine(graphics, pen, 0, 0, 0, -kRose);
    DrawOutline(graphics, pen,
                {At(0, -70), At(-4, -75), At(-8, -75), At(-8, -70), At(8, -70), At(8, -75), At(4, -75)});
}

void DrawFixedMarks(Graphics& graphics) {
    const Pen pen = PenOf(kWhite);
    DrawOutline(graphics, pen, {At(0, -70), At(4, -78), At(-4, -78)});
    for (const int side : {-1, 1}) GdipDrawLineI(graphics, pen, side * 80, 0, side * 72, 0);
    GdipDrawLineI(graphics, pen, -15, 0, 15, 0);
    GdipDrawLineI(graphics, pen, 0, 15, 0, -20);
}

}  // namespace

double ReferenceHeading() {
    return Bounded(HeadingReferenceInUse().is_true ? sim.true_hdg : sim.mag_hdg, 0, 360);
}

void DrawPfdCompass(const PfdView& view) {
    if (!IsPfdLit() || !IsIrsOn()) return;
    Graphics& graphics = view.graphics;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, 0, kCompassY);
    DrawSmallMap(view);
    const double heading = ReferenceHeading();
    constexpr RoseTicks kTicks{.outer = kRose,
                               .tens = kRoseInner,
                               .fives = kRose,
                               .within = 105,
                               .label_y = -61,
                               .label_size = 9,
                               .width = 1};
    DrawRoseTicks(graphics, kTicks, heading);
    DrawSelected(graphics, heading);
    DrawFixedMarks(graphics);
}
