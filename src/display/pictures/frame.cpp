#include "display/pictures/frame.h"

#include "display/pictures/compose.h"
#include "display/routing/routing.h"
#include "paint/graphics.h"
#include "state/displays.h"
#include "state/power_words.h"

namespace {

// Alpha 0: the host's blank screen shows through.
constexpr Argb kDark = 0x0072bd61;

bool MayPaint(ShownIn shown_in) {
    const bool in_2d = displays.cockpit_2d_active == 1;
    return shown_in == ShownIn::kAlways || in_2d == (shown_in == ShownIn::k2dCockpit);
}

bool UnitIsPowered(int unit) {
    switch (unit) {
        case 1:
            return AreFirstUnitsPowered();
        case 2:
            return IsPoweredBeyondBattery() && displays.du_cib_startup_cnt >= 90;
        case 3:
        case 4:
            return AreAllBusesAlive();
        case 5:
            return IsPoweredBeyondBattery() && displays.du_lwr_startup_cnt >= 60;
        default:
            return false;
    }
}

}  // namespace

bool ComposeFrame(const PaintedGauge& gauge, DrawList& list) {
    if (!MayPaint(gauge.shown_in)) return false;
    Graphics graphics =
        GdipCreateGraphics(list, static_cast<float>(gauge.width), static_cast<float>(gauge.height));
    switch (gauge.painting) {
        case Painting::kDisplayUnit:
            if (UnitIsPowered(gauge.unit))
                return ComposeDisplayUnit(graphics, DisplayModeOf(gauge.unit), gauge.unit, gauge.gauge_id);
            GdipGraphicsClear(graphics, kDark);
            break;
        case Painting::kStandby:
            GdipGraphicsClear(graphics, kDark);
            if (AreFirstUnitsPowered()) DrawStandbyPfd(graphics);
            break;
        case Painting::kHud:
            GdipGraphicsClear(graphics, 0);
            if (AreFirstUnitsPowered()) DrawHud(graphics);
            break;
        case Painting::kEfb:
            DrawEfb(graphics, gauge.unit);
            break;
        case Painting::kDebug:
            DrawDebug(graphics);
            break;
    }
    return true;
}
