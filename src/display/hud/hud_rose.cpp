#include "display/hud/hud_rose.h"

#include <cmath>

#include "base/text.h"
#include "display/hud/hud_view.h"
#include "display/pfd/pfd_view.h"
#include "state/cockpit.h"
#include "state/sim.h"

namespace {

void DrawTicks(Graphics& graphics, double heading) {
    constexpr double kSeen = 105, kInner = 62, kOuter = 70, kLabelY = 54;
    constexpr int kStep = 10, kLabelled = 30;
    constexpr float kSize = 9;
    for (int value = 0; value < 360; value += kStep) {
        const double off = std::remainder(value - heading, 360);
        if (!(std::fabs(off) <= kSeen)) continue;
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, off);
        HudLine(graphics, 0, -kOuter, 0, -kInner);
        if (value % kLabelled == 0) HudTextAbout(graphics, 0, -kLabelY, kSize, Format("%d", value / 10));
    }
}

void DrawSelected(Graphics& graphics, double heading) {
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, Bounded(sim.ap_hdgbug, 0, 360) - heading);
    HudLine(graphics, 0, 0, 0, -70);
    DrawOutline(graphics, HudPen(),
                {At(0, -70), At(-4, -75), At(-8, -75), At(-8, -70), At(8, -70), At(8, -75), At(4, -75)});
}

}  // namespace

void DrawHudRose(Graphics& graphics) {
    if (IsDecluttered()) return;
    const double heading = Bounded(sim.mag_hdg, 0, 360);
    DrawOutline(graphics, HudPen(), {At(0, -70), At(4, -78), At(-4, -78)});
    for (const int side : {-1, 1}) HudLine(graphics, side * 80, 0, side * 72, 0);
    DrawTicks(graphics, heading);
    HudLine(graphics, -15, 0, 15, 0);
    HudLine(graphics, 0, 15, 0, -20);
    DrawSelected(graphics, heading);
}

void DrawHudFootLine(Graphics& graphics) {
    constexpr float kSize = 9;
    HudText(graphics, -165, -10, kSize, "SEL");
    HudText(graphics, -142, -10, kSize, cockpit.hdg_trk_mode == 1 ? "TRK" : "HDG");
    HudText(graphics, -115, -10, kSize + 2, Format("%03.0f", Bounded(sim.ap_hdgbug, 0, 360)));
}
