#include "display/pfd/compass.h"

#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "state/lnav.h"
#include "state/sim.h"

namespace {

constexpr double kRoseInner = 62, kRose = 70;

void DrawTicks(Graphics& graphics, double heading) {
    constexpr int kStep = 10;
    constexpr double kSeen = 105;
    constexpr float kSize = 9;
    const Pen pen = PenOf(kWhite);
    for (int value = 0; value < 360; value += kStep) {
        if (BearingDifference(value, heading) > kSeen) continue;
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, value - heading);
        GdipDrawLine(graphics, pen, 0, -kRoseInner, 0, -kRose);
        if (value % 30 == 0) TextAbout(graphics, 0, -kRoseInner + 7, kSize, kWhite, Format("%d", value / 10));
    }
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
    return Bounded(lnav.true_reference == 1 ? sim.true_hdg : sim.mag_hdg, 0, 360);
}

void DrawPfdCompass(const PfdView& view) {
    if (!IsPfdLit() || !IsAttitudeKnown()) return;
    Graphics& graphics = view.graphics;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, 0, kCompassY);
    const double heading = ReferenceHeading();
    DrawTicks(graphics, heading);
    DrawSelected(graphics, heading);
    DrawFixedMarks(graphics);
}
