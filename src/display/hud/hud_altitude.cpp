#include "display/hud/hud_altitude.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "display/hud/hud_view.h"
#include "display/pfd/altitude_tape.h"
#include "display/pfd/baro.h"
#include "state/instruments.h"
#include "state/sim.h"

namespace {

constexpr double kMetresPerFoot = 0.3048;

bool IsMetric() {
    return instruments.pfd[0].mtrs_on == 1;
}

void DrawAltitudeScale(Graphics& graphics) {
    constexpr int kTick = 100, kNumbered = 200, kThousand = 1000;
    constexpr float kLarge = 11, kSmall = 9;
    const double altitude = ShownAltitude();
    for (int value = static_cast<int>(std::ceil((altitude - kSeenFeet) / kTick)) * kTick;
         value <= altitude + kSeenFeet; value += kTick) {
        const double y = (altitude - value) * kUnitsPerFoot;
        HudLine(graphics, 190, y, 197, y);
        if (value % kNumbered == 0)
            HudTextFrom(graphics, value < kThousand ? 210 : 205, y, value < 10 * kThousand ? kLarge : kSmall,
                        Format("%03.0f", static_cast<double>(value)));
        if (value % kThousand != 0) continue;
        HudLine(graphics, 197, y - 8, 230, y - 8);
        HudLine(graphics, 197, y + 6, 230, y + 6);
        HudLine(graphics, 187, y, 197, y);
    }
}

void DrawGround(Graphics& graphics) {
    const double top = Bounded(sim.radio_alt_ft, -9999, 99999) * kUnitsPerFoot;
    if (!(std::fabs(top) <= 2 * kHudReach)) return;
    FilledRectangle(graphics, GdipCreateHatchBrush(HatchStyle::kForwardDiagonal, kHudColour, 0), 190, top, 40,
                    25);
}

void DrawAltitudeTrend(Graphics& graphics) {
    constexpr double kX = 197, kHead = 5, kHalfHead = 4, kLeastTrend = 10;
    const double change = AltitudeTrend();
    const double t = Bounded(-change * kUnitsPerFoot, -kHudReach, kHudReach);
    HudLine(graphics, kX, 0, kX, t);
    if (!(std::fabs(change) > kLeastTrend)) return;
    const double base = t - std::copysign(kHead, t);
    DrawOutline(graphics, HudPen(), {At(kX, t), At(kX + kHalfHead, base), At(kX - kHalfHead, base)});
}

// Nothing else is seen where it stands.
void DrawAltitudeBug(Graphics& graphics) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, 0, AltitudeOffset(sim.apalt));
    const ClipBlock clip(graphics, 183, -16, 15, 32);
    DrawOutline(graphics, HudPen(),
                {At(189, 0), At(184, -5), At(184, -15), At(204, -15), At(204, 15), At(184, 15), At(184, 5)});
}

void DrawAltitudePointer(Graphics& graphics) {
    constexpr double kTenThousandsRoll = 9980, kTwenty = 20;
    constexpr float kSize = 12, kSmall = 10;
    DrawOutline(graphics, HudPen(),
                {At(194, 0), At(199, -5), At(199, -15), At(239, -15), At(239, 15), At(199, 15), At(199, 5)});
    const ClipBlock clip(graphics, 199, -15, 40, 30);
    const double altitude = ShownAltitude(), size = std::fabs(altitude);
    if (size >= kTenThousandsRoll) HudDrum(graphics, 204, size, 10000, kTwenty, size < 10000);
    if (altitude < 0)
        HudTextAbout(graphics, 212, 0, kSize, "-");
    else
        HudDrum(graphics, 212, size, 1000, kTwenty, size < 100);
    HudDrum(graphics, 220, size, 100, kTwenty, size < 100);
    const TwentyDrum drum = TwentyOnDrum(altitude);
    for (int i = -2; i <= 2; ++i)
        HudTextAbout(graphics, 231, drum.offset + i * drum.pitch, kSmall, TwentyText(drum.step + i));
}

void DrawMetricAltitude(Graphics& graphics) {
    constexpr float kSize = 9;
    HudBox(graphics, 200, -25, 39, 10);
    HudTextUpTo(graphics, 231, -20, kSize, Format("%5.0f", ShownAltitude() * kMetresPerFoot));
    HudTextFrom(graphics, 232, -20, kSize - 1, "M");
}

void DrawBaroReadout(Graphics& graphics) {
    constexpr float kSize = 9;
    const bool hpa = instruments.pfd[0].baro_hpa == 1;
    if (IsBaroStandard()) {
        HudText(graphics, 170, 110, kSize + 1, "STD");
        return HudText(graphics, 170, 125, kSize, PresetText(hpa));
    }
    HudText(graphics, 170, 123, kSize, BaroText(hpa) + (hpa ? " HPA" : " IN"));
    if (IsBaroCautioned()) HudBox(graphics, 170, 123, 45, 11);
}

}  // namespace

void DrawHudAltitude(Graphics& graphics) {
    constexpr float kSize = 12, kLabelSize = 10;
    if (IsDecluttered()) {
        HudText(graphics, 60, -15, kSize, Format("%.0fB", ShownAltitude()));
        return HudText(graphics, 190, -140, kLabelSize, "ALT");
    }
    HudLine(graphics, 190, -100, 230, -100);
    HudLine(graphics, 190, -100, 190, 100);
    HudLine(graphics, 190, 100, 230, 100);
    constexpr HudArea kTape{180, -100, 50, 200}, kPointer{202, -15, 45, 30}, kWithMetres{202, -25, 45, 40};
    ClipAround(graphics, kTape, IsMetric() ? kWithMetres : kPointer);
    for (const auto draw : {DrawAltitudeScale, DrawGround, DrawAltitudeTrend}) draw(graphics);
    GdipResetClip(graphics);
    DrawAltitudeBug(graphics);
    DrawAltitudePointer(graphics);
    if (IsMetric()) DrawMetricAltitude(graphics);
}

void DrawHudAltitudeReadouts(Graphics& graphics) {
    constexpr float kSize = 12, kSmall = 10;
    constexpr double kStep = 50;
    const double speed = Bounded(sim.vs_fpm, -99999, 99999);
    HudText(graphics, 60, IsDecluttered() ? 10 : 80, kSmall,
            Format("%.0fVS", std::floor(speed / kStep) * kStep));
    const double selected = Bounded(sim.apalt, 0, 99999);
    HudText(graphics, 190, -118, kSize, Format("%5.0f", selected));
    if (IsMetric()) HudText(graphics, 192, -130, kSmall, Format("%5.0f M", selected * kMetresPerFoot));
    DrawBaroReadout(graphics);
}
