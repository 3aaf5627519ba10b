#include "display/pfd/deviations.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "display/pfd/approach_source.h"
#include "state/autoflight.h"
#include "state/lnav.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kNeedlePerUnit = 3.735294117647059;  // 127 stands at 34 units
constexpr double kFull = 34;                          // units
constexpr double kEnd = 40;
constexpr int kUprightX = 67, kLevelY = 111, kFrameWidth = 15, kFrameFrom = -40, kFrameLength = 85;

double UnitsOf(double needle) {
    return Bounded(needle, -127, 127) / kNeedlePerUnit;
}

// --- the landing system: four circles, a line in the middle, a diamond

void DrawScaleCircle(Graphics& graphics, double x, double y) {
    constexpr int kRadius = 5;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, x, y);
    GdipDrawEllipseI(graphics, PenOf(kWhite), -kRadius / 2, -kRadius / 2, kRadius, kRadius);
}

void DrawDiamond(Graphics& graphics, double x, double y) {
    const auto diamond = {At(x - 4, y), At(x, y - 5), At(x + 4, y), At(x, y + 5)};
    FillOutline(graphics, BrushOf(kPfdMagenta), diamond);
    DrawOutline(graphics, PenOf(kPfdMagenta), diamond);
}

void DrawGlideSlope(Graphics& graphics) {
    constexpr double kMiddle = 75;
    for (const double y : {-36, -19, 19, 36}) DrawScaleCircle(graphics, kMiddle, y);
    Line(graphics, 70, 0, 82, 0, kWhite);
    DrawDiamond(graphics, kMiddle, UnitsOf(sim.gs_needle));
}

void DrawLocalizer(Graphics& graphics) {
    constexpr double kMiddle = 118.5;
    for (const double x : {-32, -17, 15, 32}) DrawScaleCircle(graphics, x, kMiddle);
    Line(graphics, 0, kLevelY, 0, kLevelY + kFrameWidth, kWhite);
    DrawDiamond(graphics, UnitsOf(sim.loc_needle), kMiddle);
}

// --- course and path of the flight management computer: a frame with end blocks, a triangle

Brush ScaleFill() {
    constexpr Rgb kTape{139, 156, 175};
    constexpr Argb kAlpha = 20;
    return GdipCreateSolidFill(kAlpha << 24 | (Scaled(kTape) & 0xffffff));
}

void DrawUprightFrame(Graphics& graphics) {
    GdipFillRectangleI(graphics, ScaleFill(), kUprightX, kFrameFrom, kFrameWidth, kFrameLength);
    GdipDrawRectangleI(graphics, TapeFrame(), kUprightX, kFrameFrom, kFrameWidth, kFrameLength);
    for (const double y : {-kFull, 0.0, kFull}) Line(graphics, 72, y, 80, y, kWhite);
    for (const int y : {32, -40}) FilledBox(graphics, 72, y, 5, 8, kWhite);
}

void DrawUprightPointer(Graphics& graphics, double d) {
    FillOutline(graphics, BrushOf(kPfdMagenta), {At(72, d), At(84, d - 5), At(84, d + 5)});
}

// The blocks reach inwards from the ends to where the deviation is allowed.
void DrawLevelFrame(Graphics& graphics, double inner) {
    constexpr double kBlockY = 112, kBlockHeight = 8;
    GdipFillRectangleI(graphics, ScaleFill(), -44, kLevelY, kFrameLength + 4, kFrameWidth);
    GdipDrawRectangleI(graphics, TapeFrame(), -44, kLevelY, kFrameLength + 4, kFrameWidth);
    for (const double x : {-kFull, 0.0, kFull}) Line(graphics, x, 113, x, 121, kWhite);
    const double width = kEnd - inner;
    FilledRectangle(graphics, BrushOf(kWhite), inner, kBlockY, width, kBlockHeight);
    FilledRectangle(graphics, BrushOf(kWhite), -kEnd, kBlockY, width, kBlockHeight);
}

void DrawLevelPointer(Graphics& graphics, double d) {
    FillOutline(graphics, BrushOf(kPfdMagenta), {At(d, 115), At(d + 5, 127), At(d - 5, 127)});
}

void DrawFrames(Graphics& graphics, const DeviationShown& shown) {
    if (shown.upright_scale) DrawUprightFrame(graphics);
    if (std::isfinite(shown.upright)) DrawUprightPointer(graphics, shown.upright);
    DrawLevelFrame(graphics, shown.inner);
    DrawLevelPointer(graphics, shown.level);
}

DeviationShown FinalApproachDeviation() {
    constexpr double kActualPerformance = 0.05;  // nm
    const double rnp = pos_init.RnpEntry;
    const double inner = rnp > 0 ? (rnp - kActualPerformance) / (rnp / kFull) : 0;
    return {UnitsOf(autoflight.fac_lat_needle), UnitsOf(autoflight.gp_needle), true, Bounded(inner, 0, kEnd)};
}

DeviationShown RouteDeviation() {
    constexpr double kBlockFrom = 31, kMostCrossTrack = 5, kNmPerUnit = -0.14705882352941177;
    constexpr double kFullFeet = 400, kMostFeet = 9999;
    constexpr int kLeftOfTrack = 1;
    const double off = lnav.xtk_side == kLeftOfTrack ? -lnav.xtk : lnav.xtk;
    const double level = Bounded(off, -kMostCrossTrack, kMostCrossTrack) / kNmPerUnit;
    const bool descending = vnav.tod == 1;
    double upright = std::numeric_limits<double>::quiet_NaN();
    if (descending && vnav.dist_from_bod < vnav.dist_from_tod_to_bod) {
        const double above = Bounded(sim.ind_alt_ft - vnav.desc_grad_alt, -kMostFeet, kMostFeet);
        upright = Bounded(kFull * above / kFullFeet, -kFull, kFull);
    }
    return {level, upright, descending, kBlockFrom};
}

}  // namespace

DeviationShown ShownDeviation() {
    switch (SourceOfDeviation()) {
        case DeviationSource::kLandingSystem:
            return {UnitsOf(sim.loc_needle), UnitsOf(sim.gs_needle), true, 0};
        case DeviationSource::kFinalApproach:
            return FinalApproachDeviation();
        default:
            return RouteDeviation();
    }
}

void DrawDeviations(const PfdView& view) {
    if (!IsIrsOn()) return;
    switch (SourceOfDeviation()) {
        case DeviationSource::kLandingSystem:
            DrawGlideSlope(view.graphics);
            return DrawLocalizer(view.graphics);
        case DeviationSource::kFinalApproach:
        case DeviationSource::kRoute:
            return DrawFrames(view.graphics, ShownDeviation());
        case DeviationSource::kNone:
            return;
    }
}
