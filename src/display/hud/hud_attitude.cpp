#include "display/hud/hud_attitude.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/angles.h"
#include "base/text.h"
#include "display/hud/hud_view.h"
#include "display/pfd/pfd_view.h"
#include "state/cfg.h"
#include "state/sim.h"

namespace {

constexpr double kScaleFrom = 7;  // degrees, to which the display lies on the world
constexpr double kUnitsPerHeadingDegree = 14;
constexpr int kDash = 1;  // pen style

double Pitch() {
    return Bounded(sim.pitch_deg, -180, 180);
}

double HorizonY() {
    constexpr double kLowest = 157.5;
    return (Pitch() < -kScaleFrom ? kLowest : -Pitch() * HudUnitsPerDegree()) + cfg.hud_horizon_pos;
}

void DrawHorizon(Graphics& graphics, double half) {
    const double y = HorizonY();
    HudLine(graphics, -half, y, half, y);
    DrawOutline(graphics, HudPen(), {At(0, y), At(-4, y - 10), At(4, y - 10)});
    constexpr double kFarthest = 90;
    const double off = std::remainder(Bounded(sim.ap_hdgbug, 0, 360) - sim.mag_hdg, 360);
    if (!(std::fabs(off) <= kFarthest)) return;
    const double x = off * kUnitsPerHeadingDegree;
    DrawOutline(graphics, HudPen(),
                {At(x, y), At(x - 4, y - 5), At(x - 8, y - 5), At(x - 8, y), At(x + 8, y), At(x + 8, y - 5),
                 At(x + 4, y - 5)});
}

void DrawHeadingScale(Graphics& graphics) {
    constexpr double kLeft = 25;
    constexpr int kTicks = 9, kStep = 5;
    constexpr float kSize = 9;
    const double y = HorizonY(), heading = Bounded(sim.mag_hdg, 0, 360);
    const int first = static_cast<int>(std::ceil((heading - kLeft) / 10)) * 10;
    for (int i = 0; i < kTicks; ++i) {
        const int value = first + i * kStep;
        const double x = (value - heading) * kUnitsPerHeadingDegree;
        HudLine(graphics, x, y, x, y - 6);
        if (value % 10 == 0)
            HudTextAbout(graphics, x, y - 20, kSize, Format("%02d", (value + 360) % 360 / 10));
    }
}

// The lines of one pitch on both sides, with ticks towards the horizon; `up` is -1 above it.
void DrawRung(Graphics& graphics, int pitch, int up, double y) {
    constexpr double kOuter = 48, kInner = 24, kTick = 5;
    constexpr float kSize = 9;
    Pen pen = HudPen();
    if (up > 0) GdipSetPenDashStyle(pen, kDash);
    for (const int side : {-1, 1}) {
        GdipDrawLine(graphics, pen, side * kOuter, y, side * kInner, y);
        GdipDrawLine(graphics, pen, side * kOuter, y, side * kOuter, y - up * kTick);
    }
    const std::string number = Format("%s%d", pitch < 10 ? " " : "", -up * pitch);
    HudTextFrom(graphics, up > 0 ? -66 : -61, y, kSize, number);
    HudTextFrom(graphics, 50, y, kSize, number);
}

// Two large Vs that point at the horizon.
void DrawRecoveryChevron(Graphics& graphics, int up, double y, double units) {
    constexpr double kLength = 21;  // degrees
    const double end = y + up * kLength * units;
    for (const int side : {-1, 1}) {
        HudLine(graphics, 0, y, side * 60, end);
        HudLine(graphics, 0, y + up * 10, side * 55, end);
        HudLine(graphics, side * 60, end, side * 55, end);
    }
}

void DrawLadderRungs(Graphics& graphics) {
    constexpr int kSteepUp = 30, kSteepDown = 20;
    constexpr double kSeen = 260;  // as far from the middle as anything of a rung can be seen
    const double units = HudUnitsPerDegree(), horizon = -Pitch() * units;
    for (int pitch = 5; pitch <= 90; pitch += 5)
        for (const int up : {-1, 1}) {
            const double y = horizon + up * pitch * units;
            if (std::fabs(y) <= kSeen) DrawRung(graphics, pitch, up, y);
        }
    if (Pitch() <= -kSteepUp) DrawRecoveryChevron(graphics, -1, horizon - kSteepUp * units, units);
    if (Pitch() >= kSteepDown) DrawRecoveryChevron(graphics, 1, horizon + kSteepDown * units, units);
}

}  // namespace

double HudUnitsPerDegree() {
    constexpr double kFewest = 6, kAtBound = 22.5, kLossPerDegree = 0.55;
    const double pitch = std::fabs(Pitch());
    const double units =
        pitch <= kScaleFrom ? cfg.HUDPixelsPerDeg : kAtBound - (pitch - kScaleFrom) * kLossPerDegree;
    return std::max(units, kFewest);
}

void DrawHudLadder(Graphics& graphics) {
    const int half = IsDecluttered() ? 200 : 150, height = IsDecluttered() ? 250 : 225;
    const ClipBlock clip(graphics, -half, -65, 2 * half, height);
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, sim.bank_deg);
    DrawHorizon(graphics, half);
    DrawHeadingScale(graphics);
    DrawLadderRungs(graphics);
}

void DrawHudAircraft(Graphics& graphics) {
    const double k = cfg.HUDPlaneSymbolPixels;
    DrawOutline(graphics, HudPen(2),
                {At(0, k - 2), At(-5, k - 7), At(-30, k - 7), At(-30, k - 2), At(-5, k - 2), At(0, k + 3),
                 At(5, k - 2), At(30, k - 2), At(30, k - 7), At(5, k - 7)});
}

void DrawHudBankScale(Graphics& graphics) {
    constexpr double kSlipPerUnit = 15.875;
    constexpr double kInner = -95, kOuter = -105;
    {
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, sim.bank_deg);
        DrawOutline(graphics, HudPen(2), {At(0, kInner), At(4, -87), At(-4, -87)});
        const double slip = Bounded(sim.slip_value, -127, 127) / kSlipPerUnit;
        DrawOutline(
            graphics, HudPen(2),
            {At(slip, -85), At(slip + 5, -85), At(slip + 10, -75), At(slip - 10, -75), At(slip - 5, -85)});
    }
    const double bank = std::fabs(sim.bank_deg);
    for (const int angle : {-60, -45, -30, -20, -10, 10, 20, 30, 45, 60}) {
        constexpr double kShow45 = 35, kShow60 = 50;
        if ((std::abs(angle) == 45 && !(bank > kShow45)) || (std::abs(angle) == 60 && !(bank > kShow60)))
            continue;
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, angle);
        GdipDrawLine(graphics, HudPen(2), 0, kInner, 0, kOuter);
    }
    DrawOutline(graphics, HudPen(2), {At(0, kInner), At(4, -103), At(-4, -103)});
}
