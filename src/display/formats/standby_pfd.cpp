#include "display/formats/standby_pfd.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/text.h"
#include "display/pfd/drum.h"
#include "paint/fonts.h"
#include "paint/painter.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/sim.h"

namespace {

constexpr Rgb kSky{34, 61, 134}, kGround{123, 111, 12}, kTape{139, 156, 175};
constexpr double kStandbyX = 47, kStandbyY = 46;  // all stands about it

// --- the words of this instrument, whose brightness isn't the display units'

Argb Lit(Rgb colour) {
    const double brightness = Bounded(instruments.stby_brightness, 0, 1);
    const auto channel = [&](int value) { return static_cast<int>(value * brightness); };
    return Opaque({channel(colour.r), channel(colour.g), channel(colour.b)});
}

Pen LitPen(Rgb colour, float width = 1) {
    return GdipCreatePen1(Lit(colour), width);
}

Brush LitBrush(Rgb colour) {
    return GdipCreateSolidFill(Lit(colour));
}

// Upper left corner at x, y.
void LitText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    const LayoutRect anchor{static_cast<float>(x), static_cast<float>(y), 0, 0};
    GdipDrawString(graphics, text, GdipCreateFont(FamilyOf(cfg.DuFont), size), anchor, nullptr,
                   LitBrush(colour));
}

// A line of text with its middle at y, from x on.
void LitTextAt(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    constexpr float kMiddleOfLine = 0.58f;  // of the em, from its top
    LitText(graphics, x, y - static_cast<double>(kMiddleOfLine * size), size, colour, text);
}

void BlackBox(Graphics& graphics, int x, int y, int width, int height) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), x, y, width, height);
    GdipDrawRectangleI(graphics, LitPen(kWhite), x, y, width, height);
}

void BlackFigure(Graphics& graphics, std::initializer_list<PaintPoint> points) {
    FillOutline(graphics, GdipCreateSolidFill(Opaque(kBlack)), points);
    DrawOutline(graphics, LitPen(kWhite), points);
}

// --- attitude

void DrawLadder(Graphics& graphics, double horizon) {
    constexpr double kUnits = 1.5, kSeen = 80;
    constexpr float kSize = 6;
    const Pen pen = LitPen(kWhite);
    GdipDrawLine(graphics, pen, -60, horizon, 60, horizon);
    for (int pitch = 5; pitch <= 90; pitch += 5)
        for (const int up : {-1, 1}) {
            const double y = horizon + up * pitch * kUnits;
            if (std::fabs(y) > kSeen) continue;
            const bool ten = pitch % 10 == 0;
            const double half = ten ? 16 : 8;
            GdipDrawLine(graphics, pen, -half, y, half, y);
            GdipDrawLine(graphics, pen, -4, y - up * 4, 4, y - up * 4);
            if (ten) LitText(graphics, -24, y - 2, kSize, kWhite, Format("%d", pitch));
        }
}

// Sky and ground reach as far as a turned corner of the window.
void DrawAttitude(Graphics& graphics) {
    constexpr double kUnits = 1.5;
    const double horizon = -Bounded(sim.pitch_deg, -90, 90) * kUnits;
    {
        const ClipBlock clip(graphics, -30, -35, 60, 70);
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, sim.bank_deg);
        FillOutline(graphics, LitBrush(kSky),
                    {At(-147, -146), At(53, -46), At(53, horizon), At(-147, horizon)});
        FillOutline(graphics, LitBrush(kGround),
                    {At(-147, horizon), At(53, horizon), At(53, 54), At(-147, 54)});
    }
    const ClipBlock clip(graphics, -30, -23, 60, 46);
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, sim.bank_deg);
    DrawLadder(graphics, horizon);
}

void DrawAircraft(Graphics& graphics) {
    for (const int side : {1, -1})
        BlackFigure(graphics, {At(side * -8, -1), At(side * -20, -1), At(side * -20, 1), At(side * -10, 1),
                               At(side * -10, 4), At(side * -8, 4)});
    BlackFigure(graphics, {At(-1, -1), At(1, -1), At(1, 1), At(-1, 1)});
}

void DrawBankScale(Graphics& graphics) {
    {
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, sim.bank_deg);
        FillOutline(graphics, LitBrush(kWhite), {At(0, -29), At(4, -35), At(-4, -35)});
    }
    for (const int angle : {-60, -45, -30, -20, -10, 10, 20, 30, 45, 60}) {
        const TransformBlock block(graphics);
        GdipRotateWorldTransform(graphics, angle);
        GdipDrawLineI(graphics, LitPen(kWhite), 0, -30, 0, std::abs(angle) == 30 ? -38 : -34);
    }
}

// --- heading

void DrawHeading(Graphics& graphics) {
    constexpr int kBelow = 112;  // the card's middle
    constexpr double kSeen = 55;
    constexpr float kSize = 6;
    const double heading = cockpit.TZ_OH_HDG_REF_Button == 1 ? sim.true_hdg : sim.mag_hdg;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, 0, kBelow);
    {
        const ClipBlock clip(graphics, -30, -77, 60, 15);
        GdipFillEllipseI(graphics, LitBrush(kTape), -75, -75, 150, 150);
        for (int value = 0; value < 360; value += 5) {
            const double from = std::remainder(value - heading, 360);
            if (!(std::fabs(from) <= kSeen)) continue;
            const TransformBlock turned(graphics);
            GdipRotateWorldTransform(graphics, from);
            GdipDrawLineI(graphics, LitPen(kWhite), 0, -72, 0, -75);
            if (value % 10 == 0)
                LitText(graphics, value < 100 ? -2.5 : -5, -70, kSize, kWhite, Format("%d", value / 10));
        }
    }
}

void DrawPointers(Graphics& graphics) {
    BlackFigure(graphics, {At(0, -30), At(2, -26), At(-2, -26)});
    BlackFigure(graphics, {At(0, 37), At(3, 33), At(-3, 33)});
}

// --- tapes

// A digit on its drum, and the next one rolling in; `pitch` from one to the next.
void DrawRolling(Graphics& graphics, double x, DrumDigit drum, double pitch, bool blank) {
    constexpr float kSize = 10;
    const double offset = drum.rolled * pitch;
    if (!blank) LitTextAt(graphics, x, offset, kSize, kWhite, Format("%d", drum.digit));
    if (drum.rolled > 0)
        LitTextAt(graphics, x, offset - pitch, kSize, kWhite, Format("%d", (drum.digit + 1) % 10));
}

void DrawSpeedScale(Graphics& graphics, double speed) {
    constexpr double kUnits = 0.7, kSeen = 70;
    constexpr float kSize = 7;
    const ClipBlock clip(graphics, -50, -50, 19, 102);
    GdipFillRectangleI(graphics, LitBrush(kTape), -50, -45, 19, 95);
    int value = static_cast<int>(std::ceil((speed - kSeen) / 10)) * 10;
    for (; value <= speed + kSeen; value += 10) {
        const double y = (speed - value) * kUnits;
        const bool numbered = value % 20 == 0;
        GdipDrawLine(graphics, LitPen(kWhite), -30, y, numbered ? -33 : -35, y);
        if (numbered && value >= 30) LitTextAt(graphics, -47, y, kSize, kWhite, Format("%3d", value));
    }
}

void DrawSpeed(Graphics& graphics) {
    constexpr double kSlowest = 30, kFastest = 999, kPitch = 10;
    const double speed = Bounded(sim.ias_kt, kSlowest, kFastest);
    DrawSpeedScale(graphics, speed);
    BlackBox(graphics, -60, -8, 32, 16);
    const ClipBlock clip(graphics, -60, -8, 32, 16);
    DrawRolling(graphics, -49, DigitOnDrum(speed, 100, 1), kPitch, speed < 99);
    DrawRolling(graphics, -43, DigitOnDrum(speed, 10, 1), kPitch, false);
    DrawRolling(graphics, -38, DigitOnDrum(speed, 1, 1), kPitch, false);
}

void DrawAltitudeScale(Graphics& graphics, double altitude) {
    constexpr double kUnits = 0.1, kSeen = 500;
    constexpr float kSize = 6.5f;
    const ClipBlock clip(graphics, 30, -45, 25, 95);
    FilledRectangle(graphics, LitBrush(kTape), 30.5, -45, 24, 95);
    int value = static_cast<int>(std::ceil((altitude - kSeen) / 100)) * 100;
    for (; value <= altitude + kSeen; value += 100) {
        const double y = (altitude - value) * kUnits;
        if (value == 0)
            LitTextAt(graphics, 48, y, kSize, kWhite, "0");
        else if (value % 200 == 0)
            LitTextAt(graphics, 30, y, kSize, kWhite, Format("%5.0f", static_cast<double>(value)));
        else
            GdipDrawLine(graphics, LitPen(kWhite), 30, y, 35, y);
    }
}

// The last drum counts twenties.
void DrawTwenties(Graphics& graphics, double x, double altitude) {
    constexpr double kPitch = 12, kStep = 20;
    constexpr float kSize = 9;
    const double turns = std::floor(altitude / kStep);
    for (int i = -2; i <= 2; ++i) {
        const int shown = static_cast<int>(std::fmod(std::fmod(turns + i, 5) + 5, 5)) * 2;
        LitTextAt(graphics, x, (altitude / kStep - turns - i) * kPitch, kSize, kWhite, Format("%d0", shown));
    }
}

void DrawAltitude(Graphics& graphics) {
    constexpr double kPitch = 10, kLast = 20, kTenThousand = 10000;
    const double altitude = Bounded(sim.ind_alt_ft, -2000, 99999);
    const double size = std::fabs(altitude);
    DrawAltitudeScale(graphics, altitude);
    BlackBox(graphics, 28, -8, 27, 16);
    const ClipBlock clip(graphics, 28, -8, 27, 16);
    if (size < kTenThousand)
        GdipFillRectangleI(graphics, LitBrush(kGreen), 28, -4, 6, 10);
    else
        DrawRolling(graphics, 27, DigitOnDrum(size, kTenThousand, kLast), kPitch, false);
    DrawRolling(graphics, 32, DigitOnDrum(size, 1000, kLast), kPitch, size < 1000 - kLast);
    DrawRolling(graphics, 37, DigitOnDrum(size, 100, kLast), kPitch, size < 100 - kLast);
    DrawTwenties(graphics, 42, size);
}

// --- approach and barometric setting

void DrawApproach(Graphics& graphics) {
    constexpr double kLocalizerPerUnit = 6.35, kGlideSlopePerUnit = 3.735294117647059;
    if (instruments.stby_app_mode == 0) return;
    const Brush black = GdipCreateSolidFill(Opaque(kBlack)), white = LitBrush(kWhite);
    GdipFillRectangleI(graphics, black, -22, 27, 44, 4);
    GdipFillRectangleI(graphics, black, 20, -20, 4, 40);
    GdipDrawLineI(graphics, LitPen(kWhite), 0, 27, 0, 31);
    GdipDrawLineI(graphics, LitPen(kWhite), 20, 0, 24, 0);
    for (const int x : {-21, -11, 9, 19}) GdipFillEllipseI(graphics, white, x, 28, 2, 2);
    for (const int y : {-17, -9, 7, 15}) GdipFillEllipseI(graphics, white, 21, y, 2, 2);
    const Pen needle = LitPen(kMagenta, 1.5f);
    const bool received = sim.nav1_signal != 0;
    if (received && sim.nav1_is_loc > 0) {
        const double x = Bounded(sim.loc_needle, -127, 127) / kLocalizerPerUnit;
        GdipDrawLine(graphics, needle, x, 27, x, 31);
    }
    if (received && sim.nav1_has_gs > 0) {
        const double y = std::clamp(Bounded(sim.gs_needle, -127, 127) / kGlideSlopePerUnit, -19.0, 19.0);
        GdipDrawLine(graphics, needle, 20, y, 24, y);
    }
}

void DrawBaro(Graphics& graphics) {
    constexpr float kSize = 7;
    constexpr int kInApproach = 2;
    if (instruments.stby_app_mode == kInApproach) LitText(graphics, -30, -45, kSize, kGreen, "APP");
    if (IsBaroStandard()) return LitText(graphics, -8, -43, kSize, kGreen, "STD");
    if (instruments.stby_baro_in == 1) {
        LitText(graphics, -5, -43, kSize, kGreen, Format("%2.2f", sim.baro_in));
        LitText(graphics, 18, -43, kSize, kGreen, "IN");
    } else {
        LitText(graphics, -8, -43, kSize, kGreen, Format("%4.0f", sim.baro_hpa));
        LitText(graphics, 15, -43, kSize, kGreen, "HPA");
    }
}

}  // namespace

void DrawStandbyPfd(Graphics& graphics) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, kStandbyX, kStandbyY);
    DrawAttitude(graphics);
    DrawAircraft(graphics);
    DrawBankScale(graphics);
    DrawHeading(graphics);
    DrawPointers(graphics);
    DrawSpeed(graphics);
    DrawAltitude(graphics);
    DrawApproach(graphics);
    DrawBaro(graphics);
}
