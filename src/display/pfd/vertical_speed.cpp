#include "display/pfd/vertical_speed.h"

#include <cmath>

#include "base/text.h"
#include "state/autoflight.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/traffic.h"

namespace {

constexpr double kScaleEnd = 6000;  // fpm, at the end of the scale

struct ScaleMark {
    double units;
    std::string_view label;
};
constexpr ScaleMark kMarks[] = {{14, ""}, {28, "1"}, {38, ""}, {48, "2"}, {56, ""}, {64, "6"}};

void DrawVerticalScale(Graphics& graphics) {
    constexpr float kSize = 8;
    const auto body = {At(141, 0),  At(141, -20), At(135, -25), At(135, -70), At(146, -70), At(161, -35),
                       At(161, 35), At(146, 70),  At(135, 70),  At(135, 25),  At(141, 20)};
    FillOutline(graphics, TapeFill(), body);
    DrawOutline(graphics, TapeFrame(), body);
    const Pen pen = PenOf(kWhite);
    for (const ScaleMark& mark : kMarks)
        for (const int up : {-1, 1}) {
            const double y = up * mark.units;
            GdipDrawLine(graphics, pen, 141, y, 144, y);
            if (!mark.label.empty()) TextUpTo(graphics, 140.5, y, kSize, kWhite, mark.label);
        }
    GdipDrawLineI(graphics, pen, 141, 0, 151, 0);
}

void DrawAdvisoryBands(Graphics& graphics) {
    constexpr double kX = 148, kEnd = 70;
    if (traffic.tcas_ra_level <= 0) return;
    const Pen pen = PenOf(kPfdRed, 4);
    if (traffic.tcas_ra_vs_max <= kScaleEnd)
        GdipDrawLine(graphics, pen, kX, -kEnd, kX, -VerticalSpeedUnits(traffic.tcas_ra_vs_max));
    if (traffic.tcas_ra_vs_min >= -kScaleEnd)
        GdipDrawLine(graphics, pen, kX, kEnd, kX, -VerticalSpeedUnits(traffic.tcas_ra_vs_min));
}

}  // namespace

double VerticalSpeedUnits(double fpm) {
    const double v = Bounded(std::fabs(fpm), 0, kScaleEnd);
    const double units = v < 1000 ? 0.028 * v : v < 2000 ? 28 + 0.02 * (v - 1000) : 48 + 0.004 * (v - 2000);
    return fpm < 0 ? -units : units;
}

void DrawVerticalSpeed(const PfdView& view) {
    constexpr double kLeastDigits = 400;
    constexpr float kSize = 10, kFlagSize = 8;
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    DrawVerticalScale(graphics);
    DrawAdvisoryBands(graphics);
    const double x = view.narrow ? 158 : 160;
    if (autoflight.ap_vert_mode == kVertVs) {
        const double y = -VerticalSpeedUnits(sim.ap_vsbug);
        GdipDrawLine(graphics, PenOf(kPfdMagenta, 3), x - 18, y, x - 12, y);
    }
    GdipDrawLine(graphics, PenOf(kWhite, 1.5f), x, 0, x - 15, -VerticalSpeedUnits(sim.vs_fpm));
    const double speed = Bounded(std::fabs(sim.vs_fpm), 0, 99999);
    if (speed >= kLeastDigits)
        Text(graphics, 133, 73, kSize, kWhite, Format("%4d", static_cast<int>(speed / 100) * 100));
    if (instruments.ldg_alt_flag == 1) Text(graphics, 135, 85, kFlagSize, kAmber, "LDG\nALT");
}
