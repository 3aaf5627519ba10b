#include "display/pfd/attitude.h"

#include <cmath>
#include <cstdlib>
#include <string>

#include "state/cfg.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/traffic.h"

namespace {

Brush ConfiguredBrush(const std::array<int, 3>& colour) {
    return BrushOf({colour[0], colour[1], colour[2]});
}

// Where the ladder is seen: below an arc, between two uprights.
const GraphicsPath& LadderOutline() {
    static const GraphicsPath outline = [] {
        GraphicsPath path = GdipCreatePath();
        GdipAddPathArcI(path, -85, -65, 170, 141, 210, 120);
        GdipAddPathLineI(path, 70, -35, 70, 75);
        GdipAddPathLineI(path, -70, 75, -70, -35);
        GdipClosePathFigure(path);
        return path;
    }();
    return outline;
}

void DrawSkyAndGround(Graphics& graphics, double horizon) {
    constexpr double kLeft = -633, kRight = 251;
    const PaintPoint left = At(kLeft, horizon), right = At(kRight, horizon);
    FillOutline(graphics, ConfiguredBrush(cfg.PfdSkyColor), {At(kLeft, -570), At(kRight, -128), right, left});
    FillOutline(graphics, ConfiguredBrush(cfg.PFDGndColor), {left, right, At(kRight, 314), At(kLeft, 314)});
}

void DrawLadder(Graphics& graphics, double horizon) {
    constexpr double kHorizonHalf = 130, kTenHalf = 32, kFiveHalf = 16, kHalfStepHalf = 8;
    constexpr double kHalfStep = 7.5;  // units
    constexpr double kSeen = 110;  // as far as a line inside of the outline can stand, turned as it may be
    constexpr float kSize = 9;
    const Pen pen = PenOf(kWhite);
    GdipDrawLine(graphics, pen, -kHorizonHalf, horizon, kHorizonHalf, horizon);
    for (int pitch = 5; pitch <= 90; pitch += 5)
        for (const int up : {-1, 1}) {
            const double y = horizon + up * pitch * kUnitsPerDegree;
            if (std::fabs(y) > kSeen) continue;
            const bool ten = pitch % 10 == 0;
            const double half = ten ? kTenHalf : kFiveHalf;
            GdipDrawLine(graphics, pen, -half, y, half, y);
            GdipDrawLine(graphics, pen, -kHalfStepHalf, y - up * kHalfStep, kHalfStepHalf,
                         y - up * kHalfStep);
            if (!ten) continue;
            const std::string number = std::to_string(pitch);
            TextUpTo(graphics, -kTenHalf - 2, y, kSize, kWhite, number);
            TextFrom(graphics, kTenHalf + 2, y, kSize, kWhite, number);
        }
}

struct FixedMark {
    int degrees;
    double outer;  // y of its end
};
constexpr FixedMark kFixedMarks[] = {{-60, -77}, {-45, -75}, {-30, -80}, {-20, -75}, {-10, -75},
                                     {10, -75},  {20, -75},  {30, -80},  {45, -75},  {60, -77}};

}  // namespace

// Feet a mile, a hundred of which are a degree.
double ClimbAngle() {
    return sim.vs_fpm / (sim.ground_speed_kt / 60) / 100;
}

double TrackOffset() {
    return std::remainder(sim.true_track_deg - sim.true_hdg, 360);
}

void DrawSphere(const PfdView& view) {
    constexpr int kTop = -128, kHeight = 256;
    Graphics& graphics = view.graphics;
    if (!IsPfdLit() || !IsIrsOn()) return DrawFlag(graphics, -8, -50, 16, 12, "ATT");
    const double horizon = HorizonOffset();
    const int left = view.narrow ? -121 : -191, right = view.narrow ? 161 : 191;
    const TransformBlock block(graphics);
    {
        const ClipBlock clip(graphics, left, kTop, right - left, kHeight);
        GdipRotateWorldTransform(graphics, sim.bank_deg);
        DrawSkyAndGround(graphics, horizon);
    }
    GdipRotateWorldTransform(graphics, -sim.bank_deg);
    GdipSetClipPath(graphics, LadderOutline());
    GdipRotateWorldTransform(graphics, sim.bank_deg);
    DrawLadder(graphics, horizon);
    GdipResetClip(graphics);
}

void DrawPitchLimit(const PfdView& view) {
    constexpr double kFullMargin = 25000, kAtStall = 37, kReach = 80, kFarAway = -40;
    constexpr double kInner = 30, kBar = 12, kStem = 6;
    if (!(sim.flap_pos > 0)) return;
    const double margin = Bounded(sim.pli_margin, -kFullMargin, kFullMargin);
    const double y = margin < kFullMargin ? kAtStall - margin / kFullMargin * kReach : kFarAway;
    const Pen pen = PenOf(kAmber, 1.5f);
    for (const int side : {-1, 1}) {
        const double inner = side * kInner, outer = side * (kInner + kBar);
        GdipDrawLine(view.graphics, pen, inner, y, inner, y + kStem);
        GdipDrawLine(view.graphics, pen, inner, y, outer, y);
        for (const double from : {inner + side * 4, inner + side * 8})
            GdipDrawLine(view.graphics, pen, from, y, from + side * 4, y - 5);
    }
}

void DrawAircraftSymbol(const PfdView& view) {
    Graphics& graphics = view.graphics;
    const Brush fill = BrushOf(kBlack);
    const Pen pen = PenOf(kWhite);
    if (cfg.FlightDirectorDualCue != 1) {
        const auto delta = {At(0, 0), At(40, 10), At(20, 10), At(0, 0), At(-20, 10), At(-40, 10)};
        FillOutline(graphics, fill, delta);
        DrawOutline(graphics, pen, delta);
        return;
    }
    for (const int side : {-1, 1}) {
        const auto wing = {At(side * 26, 0), At(side * 26, -2), At(side * 60, -2), At(side * 60, 2),
                           At(side * 30, 2), At(side * 30, 10), At(side * 26, 10)};
        FillOutline(graphics, fill, wing);
        DrawOutline(graphics, pen, wing);
    }
    const auto nose = {At(-2, -2), At(2, -2), At(2, 2), At(-2, 2)};
    FillOutline(graphics, fill, nose);
    DrawOutline(graphics, pen, nose);
}

void DrawBankScale(const PfdView& view) {
    constexpr double kSlipPerUnit = 15.875;
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    const Pen pen = PenOf(kWhite);
    {
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, sim.bank_deg);
        DrawOutline(graphics, pen, {At(0, -70), At(4, -62), At(-4, -62)});
        const double slip = Bounded(sim.slip_value, -127, 127) / kSlipPerUnit;
        FilledRectangle(graphics, BrushOf(kWhite), slip - 5, -62, 10, 3);
    }
    for (const FixedMark& mark : kFixedMarks) {
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, mark.degrees);
        GdipDrawLine(graphics, pen, 0, -70, 0, mark.outer);
    }
    FillOutline(graphics, BrushOf(kWhite), {At(0, -70), At(3, -75), At(-3, -75)});
}

void DrawAdvisoryPitch(const PfdView& view) {
    constexpr double kHalf = 15, kSlantOut = 30, kSlantUp = 60;
    if (traffic.tcas_ra_level <= 0) return;
    Graphics& graphics = view.graphics;
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, sim.bank_deg);
    const Pen pen = PenOf(kPfdRed, 2);
    const auto limit = [&](double degrees, double away) {
        if (degrees == kNoPitchLimit) return;
        const double y = HorizonOffset() - kUnitsPerDegree * Bounded(degrees, -90, 90);
        GdipDrawLine(graphics, pen, -kHalf, y, kHalf, y);
        for (const int side : {-1, 1})
            GdipDrawLine(graphics, pen, side * kHalf, y, side * kSlantOut, y + away);
    };
    limit(traffic.tcas_pitch_max, -kSlantUp);
    limit(traffic.tcas_pitch_min, kSlantUp);
}

void DrawFlightPathVector(const PfdView& view) {
    constexpr double kSlow = 60, kReachUp = 70, kReachAside = 65;
    constexpr int kRadius = 6, kWing = 12;
    if (instruments.pfd[static_cast<std::size_t>(view.side - 1)].fpv_on != 1) return;
    double x = 0, y = 0;
    if (sim.ground_speed_kt > kSlow) {
        const double at_x = TrackOffset() * kUnitsPerDegree;
        const double at_y = HorizonOffset() - ClimbAngle() * kUnitsPerDegree;
        x = Bounded(at_x, -kReachAside, kReachAside);
        y = Bounded(at_y, -kReachUp, kReachUp);
        if ((x != at_x || y != at_y) && !IsBlinkOn()) return;
    }
    Graphics& graphics = view.graphics;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, x, y);
    const Pen pen = PenOf(kWhite, 1.5f);
    GdipDrawEllipseI(graphics, pen, -kRadius, -kRadius, 2 * kRadius, 2 * kRadius);
    GdipDrawLineI(graphics, pen, 0, -kRadius, 0, -kRadius - 6);
    for (const int side : {-1, 1}) GdipDrawLineI(graphics, pen, side * kRadius, 0, side * kWing, 0);
}
