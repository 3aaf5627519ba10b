#include "display/nd/compass_rose.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/angles.h"
#include "base/numbers.h"
#include "paint/painter.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/sim.h"

namespace {

constexpr float kLabelSize = 13;

float RoseLineWidth() {
    return cfg.NDArcLinesize > 1 ? 2 : 1;
}

void DrawTickLabel(Graphics& graphics, const RoseTicks& ticks, int degrees) {
    const int tens = degrees == 0 ? 36 : degrees / 10;
    char text[4];
    const char* end = std::to_chars(text, text + sizeof text, tens).ptr;
    const int x = tens < 10 ? -6 : -9;
    Text(graphics, x, ticks.label_y, ticks.label_size, ticks.colour,
         {text, static_cast<std::size_t>(end - text)});
}

// Draws in the frame turned to a direction of the compass.
template <class Draw>
void At(Graphics& graphics, const NdFrame& frame, double direction, Draw draw) {
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, direction - frame.reference.up);
    draw();
}

void DrawLeftPointer(Graphics& graphics, int y) {
    const Pen pen = GdipCreatePen1(Scaled(kGreen), 1);
    const int e = -y;
    const IntPoint head[] = {{0, y}, {5, y + 8}, {-5, y + 8}};
    GdipFillPolygonI(graphics, GdipCreateSolidFill(Scaled(kGreen)), head);
    GdipDrawLineI(graphics, pen, 0, y + 30, 0, y);
    GdipDrawLineI(graphics, pen, 0, e - 30, 0, e);
    const IntPoint tail[] = {{-8, e - 3}, {0, e - 9}, {8, e - 3}};
    GdipDrawLinesI(graphics, pen, tail);
}

void DrawRightPointer(Graphics& graphics, int y) {
    const Pen pen = GdipCreatePen1(Scaled(kGreen), 1);
    const int e = -y;
    const IntPoint head[] = {{0, y},      {-6, y},    {-6, y - 5}, {-3, y - 5}, {-3, y - 25}, {0, y - 30},
                             {3, y - 25}, {3, y - 5}, {6, y - 5},  {6, y},      {0, y}};
    GdipDrawLinesI(graphics, pen, head);
    const IntPoint tail[] = {{0, e},       {3, e + 5},   {3, e + 20},  {8, e + 25}, {8, e + 30}, {0, e + 25},
                             {-8, e + 30}, {-8, e + 25}, {-3, e + 20}, {-3, e + 5}, {0, e}};
    GdipDrawLinesI(graphics, pen, tail);
}

void DrawBug(Graphics& graphics, int r) {
    const Pen pen = GdipCreatePen1(Scaled(kMagenta), 1);
    if (cockpit.hdg_trk_mode == 0) {
        const IntPoint bug[] = {{0, r},      {10, r},      {10, r - 7}, {3, r - 7}, {0, r},
                                {-3, r - 7}, {-10, r - 7}, {-10, r},    {0, r}};
        GdipDrawLinesI(graphics, pen, bug);
    } else {
        const IntPoint bug[] = {{0, r}, {10, r}, {10, r + 4}, {0, r + 9}, {-10, r + 4}, {-10, r}, {0, r}};
        GdipDrawLinesI(graphics, pen, bug);
    }
}

bool IsBugLineDrawn() {
    const int mode = autoflight.ap_lat_mode;
    return cockpit.hdg_trk_mode != 0 || (mode != kLatLnav && mode != kLatLoc) || nd_memory.hdg_sel_timer > 0;
}

}  // namespace

void DrawRoseTicks(Graphics& graphics, const RoseTicks& ticks, double up) {
    const TransformBlock block(graphics);
    const Matrix upright = graphics.world;
    const Pen pen = GdipCreatePen1(Scaled(ticks.colour), ticks.width);
    const int step = ticks.fives == ticks.outer ? 10 : 5;
    up = FoldBearing(up);
    const int first = WholeNumber(std::ceil((up - ticks.within) / step)) * step;
    for (int tick = first; tick <= up + ticks.within && tick < first + 360; tick += step) {
        const int degrees = (tick + 360) % 360;
        const bool ten = degrees % 10 == 0;
        graphics.world = upright;
        GdipRotateWorldTransform(graphics, degrees - up);
        GdipDrawLine(graphics, pen, 0, -ticks.outer, 0, ten ? -ticks.tens : -ticks.fives);
        if (degrees % 30 == 0) DrawTickLabel(graphics, ticks, degrees);
    }
}

void DrawRose(Graphics& graphics, const NdFrame& frame) {
    const Pen pen = GdipCreatePen1(Scaled(kWhite), RoseLineWidth());
    if (frame.in_plan) {
        GdipDrawEllipseI(graphics, pen, -60, -60, 120, 120);
        GdipDrawEllipseI(graphics, pen, -120, -120, 240, 240);
        return;
    }
    if (!frame.centred && !frame.vsd) GdipDrawArcI(graphics, pen, -300, -300, 600, 600, 200, 142);
    if (!frame.centred && frame.vsd) GdipDrawArcI(graphics, pen, -180, -180, 360, 360, 210, 120);
    constexpr double kArcView = 75, kAllAround = 180;
    const double outer = frame.Pick<double>(300, 100, 180, 90);
    const double fives = frame.centred ? outer : outer - 5;
    DrawRoseTicks(graphics,
                  {.outer = outer,
                   .tens = frame.Pick<double>(290, 95, 170, 85),
                   .fives = fives,
                   .within = frame.centred ? kAllAround : kArcView,
                   .label_y = frame.Pick<double>(-290, -94, -170, -82),
                   .label_size = frame.centred ? kLabelSize - 4 : kLabelSize,
                   .width = RoseLineWidth()},
                  frame.reference.up);
}

void DrawBearingPointers(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    if (settings.nd_vor_l == 1 && sim.nav1_radial > 0)
        At(graphics, frame, frame.reference.Magnetic(sim.nav1_radial),
           [&] { DrawLeftPointer(graphics, frame.Pick(-300, -100, -180, -90)); });
    if (settings.nd_vor_r == 1 && sim.nav2_radial > 0)
        At(graphics, frame, frame.reference.Magnetic(sim.nav2_radial),
           [&] { DrawRightPointer(graphics, frame.Pick(-270, -70, -150, -60)); });
}

void DrawHeadingMarks(Graphics& graphics, const NdFrame& frame) {
    const int r = frame.Pick(-300, -100, -180, -90);
    At(graphics, frame, sim.ap_hdgbug, [&] {
        DrawBug(graphics, r);
        if (!IsBugLineDrawn()) return;
        Pen pen = GdipCreatePen1(Scaled(kMagenta), 1);
        GdipSetPenDashArray(pen, std::array<float, 4>{10, 10, 10, 10});
        GdipDrawLineI(graphics, pen, 0, 0, 0, r);
    });
    const double heading = frame.reference.is_true ? sim.true_hdg : sim.mag_hdg;
    At(graphics, frame, heading, [&] {
        const int t = frame.Pick(-301, -98, -180, -90);
        const IntPoint pointer[] = {{0, t}, {4, t - 6}, {-4, t - 6}, {0, t}};
        GdipDrawLinesI(graphics, GdipCreatePen1(Scaled(kWhite), 1), pointer);
    });
}
