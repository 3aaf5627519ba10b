#include "display/hud/hud_deviations.h"

#include <cmath>

#include "display/hud/hud_view.h"
#include "display/nd/nd_frame.h"
#include "display/pfd/approach_source.h"
#include "display/pfd/deviations.h"

namespace {

constexpr double kFull = 34, kEnd = 40;

void ScaleCircle(Graphics& graphics, double x, double y) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, x, y);
    GdipDrawEllipseI(graphics, HudPen(), -2, -2, 5, 5);
}

void Diamond(Graphics& graphics, double x, double y) {
    FillOutline(graphics, HudBrush(), {At(x - 4, y), At(x, y - 5), At(x + 4, y), At(x, y + 5)});
}

void DrawBeams(Graphics& graphics, const DeviationShown& shown) {
    constexpr double kUprightX = 175, kLevelY = 86;
    for (const double y : {-36, -19, 19, 36}) ScaleCircle(graphics, kUprightX, y);
    HudLine(graphics, 170, 0, 182, 0);
    Diamond(graphics, kUprightX, shown.upright);
    for (const double x : {-32, -17, 15, 32}) ScaleCircle(graphics, x, kLevelY);
    HudLine(graphics, 0, 79, 0, 94);
    Diamond(graphics, shown.level, kLevelY);
}

void DrawCourseAndPath(Graphics& graphics, const DeviationShown& shown) {
    if (shown.upright_scale) {
        HudBox(graphics, 167, -40, 17, 85);
        for (const double y : {-kFull, 0.0, kFull}) HudLine(graphics, 172, y, 180, y);
        for (const double y : {32, -40}) FilledRectangle(graphics, HudBrush(), 172, y, 5, 8);
    }
    const double d = shown.upright, x = shown.level;
    if (std::isfinite(d)) FillOutline(graphics, HudBrush(), {At(172, d), At(184, d - 5), At(184, d + 5)});
    HudBox(graphics, -44, 76, 89, 20);
    for (const double mark : {-kFull, 0.0, kFull}) HudLine(graphics, mark, 80, mark, 88);
    for (const double from : {shown.inner, -kEnd})
        FilledRectangle(graphics, HudBrush(), from, 79, kEnd - shown.inner, 8);
    FillOutline(graphics, HudBrush(), {At(x, 82), At(x + 5, 94), At(x - 5, 94)});
}

}  // namespace

void DrawHudDeviations(Graphics& graphics) {
    const DeviationSource source = SourceOfDeviation();
    if (!IsIrsOn() || source == DeviationSource::kNone) return;
    (source == DeviationSource::kLandingSystem ? DrawBeams : DrawCourseAndPath)(graphics, ShownDeviation());
}
