#include "display/nd/aircraft_marks.h"

#include <array>
#include <cmath>

#include "base/angles.h"
#include "display/nd/header_text.h"
#include "paint/painter.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr float kMarkSize = 9;

Pen WhitePen() {
    return GdipCreatePen1(Scaled(kWhite), 1);
}

void DrawAxis(Graphics& graphics, const NdFrame& frame) {
    const Pen pen = WhitePen();
    GdipDrawLineI(graphics, pen, 0, 0, 0, frame.Pick(-310, -107, -190, -90));
    const std::array<int, 3> centred = {-45, 45, 90}, arc = {-225, -150, -75}, vsd_arc = {-135, -90, -45};
    for (const int y : frame.Pick(arc, centred, vsd_arc, centred)) GdipDrawLineI(graphics, pen, -4, y, 4, y);
}

void DrawRadarArcs(Graphics& graphics, const NdFrame& frame) {
    const Pen pen = WhitePen();
    const auto arc = [&](int radius, int start, int sweep) {
        GdipDrawArcI(graphics, pen, -radius, -radius, 2 * radius, 2 * radius, start, sweep);
    };
    if (frame.vsd) {
        arc(135, 200, 140);
        arc(90, 180, 180);
        arc(45, 180, 180);
    } else {
        for (const int radius : {225, 150, 75}) arc(radius, 180, 180);
    }
}

// The number of nm in the middle of the axis, and how it is written.
struct RangeLabel {
    double nm;
    const char* format;
};

RangeLabel ArcLabel(double range) {
    return {range / 2, range <= 1 ? "%.2f" : range == 5 ? "%.1f" : "%.0f"};
}

RangeLabel CentredLabel(double range, bool vsd) {
    const double nm = vsd ? range / 2 : range / 4;
    if (range == 0.5 || (range == 1 && !vsd)) return {nm, "%.3f"};
    if (range == 1 || range == 5) return {nm, "%.2f"};
    if (range == 2 || range == 10) return {nm, vsd ? "%.1f" : "%.2f"};
    return {nm, "%.0f"};
}

void DrawRangeLabel(Graphics& graphics, const NdFrame& frame) {
    const double range = frame.view.range;
    const RangeLabel label = frame.centred ? CentredLabel(range, frame.vsd) : ArcLabel(range);
    char text[16];
    const int length = std::snprintf(text, sizeof text, label.format, label.nm);
    const int x = -7 - 6 * length;
    const auto at = [&](double y) { Text(graphics, x, y, kMarkSize, kWhite, text); };
    if (frame.centred) {
        at(-50);
        at(40);
    } else {
        const int lower = NdOf(frame.side).nd_wxr_lamp == 1 ? 10 : 0;
        at(frame.vsd ? -95 - lower : -155 - lower);
    }
}

// Twelve dots, the four on the axes larger.
void DrawTrafficRing(Graphics& graphics, double scale) {
    constexpr double kRadiusNm = 3;
    const Brush brush = GdipCreateSolidFill(Scaled(kWhite));
    for (int degrees = 0; degrees < 360; degrees += 30) {
        const TransformBlock block(graphics);
        const double angle = degrees * kRadPerDeg, radius = kRadiusNm * scale;
        GdipTranslateWorldTransform(graphics, std::sin(angle) * radius, -std::cos(angle) * radius);
        const int half = degrees % 90 == 0 ? 2 : 1;
        GdipFillEllipseI(graphics, brush, -half, -half, 2 * half, 2 * half);
    }
}

void DrawCrossTrack(Graphics& graphics, const NdFrame& frame) {
    if (plan.active.stpos == kNoPlan || !frame.irs_on) return;
    const double least = frame.vsd ? 0.25 : 0.85;
    if (!(lnav.xtk_shown > least)) return;
    Text(graphics, -18, 20, kMarkSize, kWhite, lnav.xtk_side_shown == kTurnLeft ? "L" : "R");
    PrintText(graphics, -10, 20, kMarkSize, kWhite, "%.1f", lnav.xtk_shown);
}

// A stretch of the circle that the present bank flies, between two moments.
void DrawTrendSegment(Graphics& graphics, double scale, double from_s, double to_s) {
    constexpr double kFeetPerNm = 6076.1, kRateFactor = 96.7, kRadiusFactor = 11.23, kDegrees = 0.01745;
    const double g = sim.ground_speed_kt, tan_bank = std::tan(std::fabs(sim.bank_deg) * kDegrees);
    constexpr std::size_t kPoints = 13;
    std::array<PaintPoint, kPoints> points;
    for (std::size_t i = 0; i < kPoints; ++i) {
        const double seconds = from_s + (to_s - from_s) * static_cast<double>(i) / (kPoints - 1);
        double x = 0, y = -g / 3600 * seconds * scale;
        if (tan_bank > 1e-4) {
            const double radius_ft = g * g / (kRadiusFactor * tan_bank);
            const double turned = seconds * g * kRateFactor / radius_ft * kRadPerDeg;
            const double radius = radius_ft / kFeetPerNm * scale;
            x = radius * (1 - std::cos(turned)) * (sim.bank_deg < 0 ? 1 : -1);
            y = -radius * std::sin(turned);
        }
        points[i] = {static_cast<float>(x), static_cast<float>(y)};
    }
    GdipDrawLines(graphics, WhitePen(), points);
}

}  // namespace

void DrawRangeMarks(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    DrawAxis(graphics, frame);
    if (settings.nd_wxr_lamp == 1 && !frame.centred) DrawRadarArcs(graphics, frame);
    constexpr double kTrafficRange = 80;
    if ((settings.nd_tfc == 1 || settings.nd_tfc == 2) && frame.view.range < kTrafficRange)
        DrawTrafficRing(graphics, frame.view.scale);
    DrawRangeLabel(graphics, frame);
}

void DrawAircraft(Graphics& graphics, const NdFrame& frame) {
    if (!frame.in_plan) {
        constexpr IntPoint kTriangle[] = {{0, 0}, {-7, 18}, {7, 18}};
        GdipDrawPolygonI(graphics, WhitePen(), kTriangle);
        return DrawCrossTrack(graphics, frame);
    }
    constexpr IntPoint kOutline[] = {{0, -5},   {2, -1},   {2, 9},   {15, 18}, {15, 20}, {6, 16},
                                     {2, 16},   {2, 25},   {5, 28},  {5, 30},  {1, 28},  {0, 29},
                                     {-1, 28},  {-5, 30},  {-5, 28}, {-2, 25}, {-2, 16}, {-6, 16},
                                     {-15, 20}, {-15, 18}, {-2, 9},  {-2, -1}, {0, -5}};
    const MapPoint at = PointOnMap(frame.view, sim.plane_lat, sim.plane_lon);
    constexpr double kRoom = 40;
    if (!frame.view.seen.Has(at, kRoom)) return;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, at.x, at.y);
    GdipRotateWorldTransform(graphics, sim.true_hdg);
    GdipDrawLinesI(graphics, WhitePen(), kOutline);
}

void DrawTrendVector(Graphics& graphics, double scale, double range) {
    constexpr double kLeastSpeed = 1, kFarRange = 20;
    if (!(sim.ground_speed_kt >= kLeastSpeed)) return;
    DrawTrendSegment(graphics, scale, 0, 30);
    if (range >= kFarRange) DrawTrendSegment(graphics, scale, 33, 60);
    if (range > kFarRange) DrawTrendSegment(graphics, scale, 63, 90);
}

void DrawAltitudeRangeArc(Graphics& graphics, double scale) {
    constexpr double kLeastRate = -200;
    if (!(sim.ind_alt_ft > sim.apalt) || !(sim.vs_fpm < kLeastRate)) return;
    const double y = (sim.ind_alt_ft - sim.apalt) / sim.vs_fpm * (sim.ground_speed_kt / 60) * scale;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, 0, y);
    GdipDrawArcI(graphics, GdipCreatePen1(Scaled(kGreen), 2), -108, 0, 217, 217, 240, 60);
}

void DrawTopBox(Graphics& graphics, const NdFrame& frame) {
    constexpr double kPolarLatitude = 70;
    if (!(std::fabs(sim.plane_lat) > kPolarLatitude)) return;
    const int y = frame.Pick(-330, -187, -209, -132);
    for (int i = 0; i < 2; ++i) BoxOutline(graphics, 50, y, 30, 22, kWhite);
    // Grid north is the direction of the Greenwich meridian at the pole.
    const double east = sim.plane_lat > 0 ? sim.plane_lon : -sim.plane_lon;
    Text(graphics, 54, y, kMarkSize, kWhite, "GRID");
    PrintText(graphics, 54, y + 10, kMarkSize, kWhite, "%03.0f", FoldBearing(sim.true_hdg - east));
}
