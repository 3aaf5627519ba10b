#include "display/pictures/frame.h"

#include <algorithm>
#include <iterator>

#include "display/formats/debug_screen.h"
#include "display/formats/hud.h"
#include "display/formats/standby_pfd.h"
#include "display/pictures/compose.h"
#include "efb/tablet.h"
#include "paint/graphics.h"
#include "state/displays.h"
#include "state/power_words.h"

namespace {

// Alpha 0: the host's blank screen shows through.
constexpr Argb kDark = 0x0072bd61, kClear = 0;

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

// One kind of screen: what it shows, what power that wants, and what is there without it.
struct Screen {
    Painting painting;
    bool (*powered)(int unit);  // null: always
    bool (*draw)(Graphics& graphics, const PaintedGauge& gauge);
    bool cleared;  // to the colour below, before it is drawn and when it isn't
    Argb background;
};
constexpr Screen kScreens[] = {
    {Painting::kDisplayUnit, UnitIsPowered,
     [](Graphics& graphics, const PaintedGauge& gauge) {
         return ComposeDisplayUnit(graphics, DisplayModeOf(gauge.unit), gauge.unit, gauge.gauge_id);
     },
     false, kDark},
    {Painting::kStandby, [](int) { return AreFirstUnitsPowered(); },
     [](Graphics& graphics, const PaintedGauge&) {
         DrawStandbyPfd(graphics);
         return true;
     },
     true, kDark},
    {Painting::kHud, [](int) { return AreFirstUnitsPowered(); },
     [](Graphics& graphics, const PaintedGauge&) {
         DrawHud(graphics);
         return true;
     },
     true, kClear},
    {Painting::kEfb, IsTabletLit,
     [](Graphics& graphics, const PaintedGauge& gauge) {
         DrawEfb(graphics, gauge.unit);
         return true;
     },
     false, kDark},
    {Painting::kDebug, nullptr,
     [](Graphics& graphics, const PaintedGauge&) {
         DrawDebugScreen(graphics);
         return true;
     },
     false, kDark},
};

}  // namespace

bool ComposeFrame(const PaintedGauge& gauge, DrawList& list) {
    if (!MayPaint(gauge.shown_in)) return false;
    Graphics graphics =
        GdipCreateGraphics(list, static_cast<float>(gauge.width), static_cast<float>(gauge.height));
    const auto* screen = std::ranges::find(kScreens, gauge.painting, &Screen::painting);
    if (screen == std::end(kScreens)) return false;
    const bool powered = screen->powered == nullptr || screen->powered(gauge.unit);
    if (screen->cleared || !powered) GdipGraphicsClear(graphics, screen->background);
    const bool painted = !powered || screen->draw(graphics, gauge);
    GdipDeleteGraphics(graphics);
    return painted;
}
