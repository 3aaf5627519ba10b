#include "display/pfd/pfd_view.h"

#include "state/displays.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr int kStackStep = 8;

}  // namespace

bool IsPfdLit() {
    return IsPoweredBeyondBattery() && displays.du_pfd_ah_startup_cnt == 10;
}

bool IsOnCaptains(const PfdView& view) {
    return view.side == kCaptain;
}

double HorizonOffset() {
    return -Bounded(sim.pitch_deg, -180, 180) * kUnitsPerDegree;
}

bool IsBaroStandard() {
    return sim.baro_hpa >= 1013 && sim.baro_hpa < 1013.4;
}

bool IsBlinkOn() {
    return time_base.tick_phase <= 7;
}

Brush TapeFill() {
    constexpr Rgb kTape{139, 156, 175};
    constexpr Argb kAlpha = 51;
    return GdipCreateSolidFill(kAlpha << 24 | (Scaled(kTape) & 0xffffff));
}

Pen TapeFrame() {
    constexpr int kAlpha = 77;
    const Argb alpha = Scaled({kAlpha, 0, 0}) >> 16 & 255;
    return GdipCreatePen1(alpha << 24, 1);
}

void StackedText(Graphics& graphics, double x, double y, float size, Rgb colour,
                 std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) {
        TextAbout(graphics, x, y, size, colour, word);
        y += kStackStep;
    }
}

void DrawFlag(Graphics& graphics, int x, int y, int width, int height, std::string_view text) {
    constexpr float kSize = 8;
    FilledBox(graphics, x, y, width, height, kBlack);
    BoxOutline(graphics, x, y, width, height, kAmber);
    TextAbout(graphics, x + width / 2.0, y + height / 2.0, kSize, kAmber, text);
}
