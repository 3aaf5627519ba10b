#include "display/pfd/radio_altitude.h"

#include "base/numbers.h"
#include "base/text.h"
#include "state/displays.h"
#include "state/instruments.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

void DrawUprightFlag(Graphics& graphics, int x, int y, int height,
                     std::initializer_list<std::string_view> letters) {
    constexpr int kWidth = 8, kStep = 8;
    constexpr float kSize = 8;
    BoxOutline(graphics, x, y, kWidth, height, kAmber);
    const double first = y + height / 2.0 - static_cast<double>(letters.size() - 1) * kStep / 2;
    StackedText(graphics, x + kWidth / 2.0, first, kSize, kAmber, letters);
}

}  // namespace

void DrawStartupFlags(const PfdView& view) {
    if (IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    DrawFlag(graphics, view.left + 141, -58, 16, 12, "F/D");
    if (!IsBatteryBusAlive() || displays.du_pfd_ah_startup_cnt >= 10) return;
    DrawUprightFlag(graphics, -100, -13, 27, {"S", "P", "D"});
    DrawUprightFlag(graphics, 105, -13, 27, {"A", "L", "T"});
    DrawUprightFlag(graphics, 145, -18, 35, {"V", "E", "R", "T"});
}

void DrawRadioAltitude(const PfdView& view) {
    constexpr double kHighest = 2500;
    constexpr int kTens = 10, kTwenties = 500;  // ft from which the steps are larger
    constexpr float kSize = 13;
    if (!IsBatteryBusAlive()) return;
    if (!IsPfdLit()) return DrawFlag(view.graphics, -7, 76, 14, 12, "RA");
    if (!(sim.radio_alt_ft <= kHighest)) return;
    const int height = WholeNumber(sim.radio_alt_ft);
    const int step = height < kTens ? 1 : height <= kTwenties ? 10 : 20;
    FilledBox(view.graphics, -20, 90, 40, 15, kBlack);
    TextAbout(view.graphics, 0, 97.5, kSize, kWhite, Format("%4d", height / step * step));
}

void DrawPullUp(const PfdView& view) {
    constexpr int kPullUp = 3;
    constexpr float kSize = 12;
    if (instruments.gpws_warning != kPullUp) return;
    FilledBox(view.graphics, -25, 76, 60, 15, kBlack);
    TextAbout(view.graphics, 5, 83.5, kSize, kWarningRed, "PULL UP");
}
