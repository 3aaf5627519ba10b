#include "display/nd/vnav_scale.h"

#include <algorithm>
#include <cmath>

#include "display/nd/header_text.h"
#include "paint/painter.h"
#include "paint/recording.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kFullScaleFt = 400, kHalfHeight = 30;

// Feet above the path; 0 behind the end of its descent.
double Deviation() {
    constexpr double kMost = 9999;
    if (!(vnav.dist_from_tod_to_bod > vnav.dist_from_bod)) return 0;
    return std::clamp(sim.ind_alt_ft - vnav.desc_grad_alt, -kMost, kMost);
}

void DrawScale(Graphics& graphics, double x, double middle) {
    Line(graphics, x, middle - kHalfHeight, x, middle + kHalfHeight, kWhite);
    for (const double end : {middle - kHalfHeight, middle + kHalfHeight})
        Line(graphics, x - 9, end, x, end, kWhite);
    Line(graphics, x - 15, middle, x, middle, kWhite);
    const double labels = x - 18;
    Text(graphics, labels, middle - 22, kNdTextSize - 2, kWhite, "RNP");
    Text(graphics, labels, middle - 12, kNdTextSize - 2, kWhite, "400");
    Text(graphics, labels, middle + 2, kNdTextSize - 2, kWhite, "ANP");
    Text(graphics, labels, middle + 12, kNdTextSize - 2, kWhite, "75");
}

void DrawPointer(Graphics& graphics, double x, double at) {
    constexpr float kWidth = 2;
    Line(graphics, x, at + 34, x, at - 26, kMagenta, kWidth);
    for (const double end : {at + 34, at - 26}) Line(graphics, x + 1, end, x - 4, end, kMagenta, kWidth);
    const auto px = static_cast<int>(x), py = static_cast<int>(std::lround(at + 4));
    const IntPoint diamond[] = {{px, py - 5}, {px + 5, py}, {px, py + 5}, {px - 5, py}};
    GdipFillPolygonI(graphics, GdipCreateSolidFill(Scaled(kBlack)), diamond);
    GdipDrawPolygonI(graphics, GdipCreatePen1(Scaled(kMagenta), 1), diamond);
}

}  // namespace

void DrawVnavScale(Graphics& graphics, const NdFrame& frame) {
    if (vnav.tod != 1 || plan.active.stpos == kNoPlan) return;
    constexpr int kBoxWidth = 25, kBoxHeight = 90;
    const double left = AtSide(frame, 110);
    const int top = frame.Pick(55, 55, -65, -125);
    const double middle = frame.Pick(96, 96, -24, -84);
    BlackBox(graphics, left, top, kBoxWidth, kBoxHeight);
    DrawScale(graphics, left + 15, middle);

    const double dev = Deviation();
    double pointer = middle;
    if (std::fabs(dev) < kFullScaleFt) {
        pointer += dev / kFullScaleFt * kHalfHeight;
    } else {
        constexpr double kStop = 32;
        pointer += dev > 0 ? kStop : -kStop;
        const double y = dev > 0 ? middle + 44 : middle - (frame.vsd ? 46 : 44);
        const double x = dev > 0 || frame.vsd ? left - 2 : left - 7;
        PrintText(graphics, x, y, kNdTextSize, kWhite, "%4d0", static_cast<int>(std::fabs(dev) / 10));
    }
    GraphicsPath& clip = ScratchPath(graphics);
    GdipAddPathRectangleI(clip, static_cast<int>(left), top, kBoxWidth + 8, kBoxHeight);
    GdipSetClipPath(graphics, clip);
    DrawPointer(graphics, left + 23, pointer);
    GdipResetClip(graphics);
}
