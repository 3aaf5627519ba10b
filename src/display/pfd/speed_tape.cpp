#include "display/pfd/speed_tape.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "display/pfd/drum.h"
#include "state/autoflight.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kFewestDashes = 40;

void DrawSpeedScale(const PfdView& view, double speed) {
    constexpr int kTick = 10, kNumbered = 20;
    constexpr float kSize = 12;  // three digits fit
    const Pen pen = PenOf(kWhite);
    int value = static_cast<int>(std::ceil((speed - kSeenKnots) / kTick)) * kTick;
    for (value = std::max(value, static_cast<int>(kSlowestShown)); value <= speed + kSeenKnots;
         value += kTick) {
        const double y = (speed - value) * kUnitsPerKnot;
        GdipDrawLine(view.graphics, pen, view.left + 33, y, view.left + 40, y);
        if (value % kNumbered == 0)
            TextUpTo(view.graphics, view.left + 32, y, kSize, kWhite, std::to_string(value));
    }
}

// Red and black dashes from a limit outwards, up negative.
void DrawDashes(const PfdView& view, double limit, double direction, double count) {
    constexpr double kStep = 8, kDash = 4, kWidth = 5;
    const double x = view.left + 40;
    const double near = Bounded(limit, -kTapeReach, kTapeReach);
    const double far = Bounded(limit + direction * count * kStep, -kTapeReach, kTapeReach);
    FilledRectangle(view.graphics, BrushOf(kBlack), x, std::min(near, far), kWidth, std::fabs(far - near));
    const Brush red = BrushOf(kPfdRed);
    const int first = static_cast<int>(Bounded(std::floor(direction * (near - limit) / kStep), 0, count));
    for (int i = first; i < count; ++i) {
        const double begin = limit + direction * i * kStep;
        if (begin * direction > kTapeReach) break;
        FilledRectangle(view.graphics, red, x, direction > 0 ? begin : begin - kDash, kWidth, kDash);
    }
}

void DrawSpeedLimits(const PfdView& view, double speed) {
    const SpeedLimits limits = LimitsOfSpeed();
    if (!IsOffGround()) return;
    const auto offset = [&](double value) { return (speed - value) * kUnitsPerKnot; };
    if (limits.high_seen) DrawDashes(view, offset(limits.high), -1, limits.dashes);
    if (limits.low_seen) DrawDashes(view, offset(sim.v_s_kt), 1, kFewestDashes);
    const double manoeuvre = Bounded(offset(sim.v_a_kt), -2 * kTapeReach, 2 * kTapeReach);
    const double stall = Bounded(offset(sim.v_s_kt), -2 * kTapeReach, 2 * kTapeReach);
    if (manoeuvre >= stall) return;
    const Pen pen = PenOf(kAmber);
    GdipDrawLine(view.graphics, pen, view.left + 43, manoeuvre, view.left + 43, stall);
    GdipDrawLine(view.graphics, pen, view.left + 40, manoeuvre, view.left + 43, manoeuvre);
}

void DrawSelectedBug(const PfdView& view) {
    const double b = SpeedOffset(sim.ap_spdbug);
    const int left = view.left;
    DrawOutline(view.graphics, PenOf(kPfdMagenta, 1.5f),
                {At(left + 34, b), At(left + 39, b - 5), At(left + 54, b - 5), At(left + 54, b + 5),
                 At(left + 39, b + 5)});
}

void DrawSpeedTrend(const PfdView& view) {
    constexpr double kHead = 5, kHalfHead = 4;
    if (!(sim.ias_kt >= kSlowestShown)) return;
    const double t = TrendOffset();
    const double x = view.left + 37;
    const Pen pen = PenOf(kGreen, 1.5f);
    GdipDrawLine(view.graphics, pen, x, 0, x, t);
    if (!IsTrendMarked()) return;
    const double base = t - std::copysign(kHead, t);
    FillOutline(view.graphics, BrushOf(kGreen), {At(x, t), At(x - kHalfHead, base), At(x + kHalfHead, base)});
}

std::string MachText(double mach) {
    return Format(".%03d", WholeNumber(std::round(mach * 1000)));
}

bool IsFmcMach() {
    const double target = sim.vnav_spd_readback;
    return vnav.vnav_engaged == 1 && instruments.fmc_speed_active == 1 && target > 0 && target < 2;
}

}  // namespace

bool IsOffGround() {
    constexpr double kOffGround = 10;  // ft
    return sim.radio_alt_ft > kOffGround;
}

SpeedLimits LimitsOfSpeed() {
    constexpr double kInReach = 140, kFarBeyond = 120, kKnotsPerDash = 4.5;
    const double speed = ShownSpeed(), ias = Bounded(sim.ias_kt, 0, kFastestShown);
    const double high = sim.v_mo_kt + kFarBeyond < ias ? ias - kSeenKnots : sim.v_mo_kt;
    return {high, std::max((speed + kSeenKnots - high) / kKnotsPerDash, kFewestDashes),
            IsOffGround() && std::fabs(high - speed) < kInReach,
            IsOffGround() && std::fabs(sim.v_s_kt - speed) < kInReach};
}

double TrendOffset() {
    constexpr double kUnitsPerTrendKnot = 1.45;
    return Bounded((ShownSpeed() - autoflight.spd_trend) * kUnitsPerTrendKnot, -kTapeReach, kTapeReach);
}

bool IsTrendMarked() {
    constexpr double kLeastTrend = 2;
    return std::fabs(autoflight.spd_trend - ShownSpeed()) > kLeastTrend;
}

SelectedSpeed SelectedSpeedShown() {
    const bool mach_mode = vnav.vnav_engaged == 1 && autoflight.at_mode == kThrottleMach;
    if (IsFmcMach()) return {MachText(sim.vnav_spd_readback), true};
    if (mach_mode || cockpit.mach_selected == 1) return {MachText(sim.ap_machbug), true};
    return {Format("%3.0f", Bounded(sim.ap_spdbug, 0, kFastestShown)), false};
}

double ShownSpeed() {
    return Bounded(sim.ias_kt, kSlowestShown, kFastestShown);
}

double SpeedOffset(double speed) {
    return Bounded((ShownSpeed() - speed) * kUnitsPerKnot, -kTapeReach, kTapeReach);
}

void DrawSpeedTape(const PfdView& view) {
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    GdipFillRectangleI(graphics, TapeFill(), view.left + 4, -100, 35, 200);
    GdipDrawRectangleI(graphics, TapeFrame(), view.left + 4, -100, 35, 200);
    const double speed = ShownSpeed();
    const ClipBlock clip(graphics, view.left + kTapeLeft, -100, kTapeWidth, 200);
    DrawSpeedScale(view, speed);
    DrawSpeedLimits(view, speed);
}

void DrawSpeedBugs(const PfdView& view) {
    if (!IsPfdLit()) return;
    const ClipBlock clip(view.graphics, view.left + kTapeLeft, -100, kTapeWidth, 200);
    DrawSelectedBug(view);
    DrawSpeedTrend(view);
}

void DrawSpeedPointer(const PfdView& view) {
    if (!IsPfdLit()) return;
    Graphics& graphics = view.graphics;
    const int left = view.left;
    const auto outline = {At(left + 33, 0), At(left + 28, -3), At(left + 28, -10), At(left + 2, -10),
                          At(left + 2, 10), At(left + 28, 10), At(left + 28, 3)};
    FillOutline(graphics, BrushOf(kBlack), outline);
    DrawOutline(graphics, PenOf(kWhite), outline);
    const ClipBlock clip(graphics, left + 2, -8, 28, 17);
    constexpr float kSize = 13;
    const DrumFace face{graphics, kSize, kWhite};
    const double speed = ShownSpeed();
    DrawDrum(face, left + 7, speed, 100, 1);
    DrawDrum(face, left + 15, speed, 10, 1);
    DrawUnitsDrum(face, left + 23, speed);
}

void DrawSelectedSpeed(const PfdView& view) {
    constexpr int kTop = -119;
    constexpr float kSize = 14;
    Graphics& graphics = view.graphics;
    const int left = view.left + 2;
    const auto readout = [&](int x, int width, int height, const std::string& text) {
        FilledBox(graphics, x, kTop, width, height, kBlack);
        TextUpTo(graphics, x + width - 1, kTop + height / 2.0, kSize, kPfdMagenta, text);
    };
    const SelectedSpeed speed = SelectedSpeedShown();
    if (speed.is_mach)
        readout(left, 40, IsFmcMach() ? 14 : 15, speed.text);
    else
        readout(left + 10, 30, 15, speed.text);
}

void DrawMach(const PfdView& view) {
    constexpr float kSize = 13;
    Graphics& graphics = view.graphics;
    if (sim.mach >= kLowestMachShown) {
        const double mach = Bounded(sim.mach, 0, 99);
        Text(graphics, view.left, 110, kSize, kWhite, mach < 0.9995 ? MachText(mach) : Format("%.3f", mach));
    }
    if (instruments.mach_box_timer > 0) BoxOutline(graphics, view.left - 1, 108, 42, 17, kWhite);
}
