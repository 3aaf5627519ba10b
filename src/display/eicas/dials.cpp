#include "display/eicas/dials.h"

#include <algorithm>
#include <span>
#include <string>

#include "base/text.h"
#include "state/cfg.h"
#include "state/displays.h"
#include "state/engines.h"

namespace {

constexpr double kSweep = 210;  // degrees of a dial's scale
constexpr double kFullPercent = 110, kFullEgt = 897;
constexpr double kNoLimit = 1e9;
constexpr int kLeftX = 302, kRightX = 367, kSide = 56, kRadius = kSide / 2;

struct Dial {
    double EngineReadings::*value;
    double full;        // the value at the end of the sweep
    double amber, red;  // limits, of the value itself
    double EngineReadings::*command = nullptr;
    double shown_at_most = kNoLimit;
    bool on_request = false;  // only with the secondary engine area
    bool whole = false;       // the readout has no decimal
    std::string_view name = {}, suffix = {};
};

constexpr Dial kRatioDials[] = {
    {.value = &EngineReadings::tpr,
     .full = kFullPercent,
     .amber = kNoLimit,
     .red = kNoLimit,
     .command = &EngineReadings::tpr_cmd,
     .name = "TPR"},
    {.value = &EngineReadings::n1_pct,
     .full = kFullPercent,
     .amber = kNoLimit,
     .red = 100.8,
     .command = &EngineReadings::n1_cmd,
     .shown_at_most = 100.6,
     .name = "N",
     .suffix = "1"},
    {.value = &EngineReadings::egt_c,
     .full = kFullEgt,
     .amber = 850,
     .red = 920,
     .whole = true,
     .name = "EGT"},
    {.value = &EngineReadings::n3_pct,
     .full = kFullPercent,
     .amber = kNoLimit,
     .red = 103.5,
     .on_request = true,
     .name = "N",
     .suffix = "3"},
};
constexpr Dial kFanDials[] = {
    {.value = &EngineReadings::n1_pct,
     .full = kFullPercent,
     .amber = kNoLimit,
     .red = 108.5,
     .command = &EngineReadings::n1_cmd,
     .name = "N",
     .suffix = "1"},
    {.value = &EngineReadings::egt_c,
     .full = kFullEgt,
     .amber = 1030,
     .red = 1070,
     .whole = true,
     .name = "EGT"},
    {.value = &EngineReadings::n2_pct,
     .full = kFullPercent,
     .amber = kNoLimit,
     .red = 118.0,
     .on_request = true,
     .name = "N",
     .suffix = "2"},
};

std::span<const Dial> Dials() {
    return HasThrustRatioDials() ? std::span<const Dial>(kRatioDials) : kFanDials;
}

bool IsShown(const Dial& dial) {
    return !dial.on_request || displays.eicas_eng_button == 1;
}

int RowY(std::size_t row) {
    return 40 + 60 * static_cast<int>(row);
}

double SweepOf(const Dial& dial, double value) {
    return std::clamp(value / dial.full * kSweep, 0.0, kSweep);
}

struct Look {
    Rgb fill = kDialFill, frame = kWhite;
};

Look LookOf(const Dial& dial, double value) {
    if (value >= dial.red) return {kEicasRed, kEicasRed};
    if (value >= dial.amber) return {kAmber, kAmber};
    return {};
}

// A line outwards from the centre at an angle of the scale, between two radii.
void Spoke(Graphics& graphics, int x, int y, double angle, double from, double to, const Pen& pen,
           double beside = 0) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, x + kRadius, y);
    GdipRotateWorldTransform(graphics, angle);
    GdipDrawLine(graphics, pen, from, beside, to, beside);
}

void DrawScale(Graphics& graphics, int x, int y, Rgb frame) {
    constexpr Argb kHalf = 0x80000000U, kColour = 0xffffffU;
    const Pen pen = GdipCreatePen1(kHalf | (Scaled(frame) & kColour), static_cast<float>(cfg.DuLinesize));
    for (int pass = 0; pass < 2; ++pass) GdipDrawArcI(graphics, pen, x, y - kRadius, kSide, kSide, 0, kSweep);
    Spoke(graphics, x, y, 0, 28, 32, PenOf(frame));
    Spoke(graphics, x, y, kSweep, 20, 32, PenOf(frame));
}

void DrawCommand(Graphics& graphics, const Dial& dial, int x, int y, double value, double command) {
    constexpr double kRunning = 53;
    constexpr int kOutside = 4, kOuterSide = 64;
    const Pen green = PenOf(kGreen);
    const double to = SweepOf(dial, command), from = SweepOf(dial, value);
    for (const double beside : {-3, 0, 3}) Spoke(graphics, x, y, to, 28, 34, green, beside);
    if (value > kRunning && to != from)
        GdipDrawArcI(graphics, PenOf(kWhite, static_cast<float>(cfg.DuLinesize)), x - kOutside,
                     y - kRadius - kOutside, kOuterSide, kOuterSide, from, to - from);
}

// The limits that the engine's own computer gives for the first dial; within reach of no other's readout.
void DrawFadecLimits(Graphics& graphics, const Dial& dial, int x, int y) {
    if (engines.FADEC_Green_line > 0)
        Spoke(graphics, x, y, SweepOf(dial, engines.FADEC_Green_line), 22, 30, PenOf(kGreen));
    if (engines.FADEC_Amber_line > 0)
        Spoke(graphics, x, y, SweepOf(dial, engines.FADEC_Amber_line), 20, 30, PenOf(kAmber, 2));
}

void DrawReadout(Graphics& graphics, const Dial& dial, int x, int y, double value, const Look& look) {
    constexpr float kSize = 12;
    constexpr int kWidth = 35, kHeight = 15;
    BoxOutline(graphics, x + kRadius, y - 17, kWidth, kHeight, look.frame);
    EicasTextUpTo(graphics, x + kRadius + kWidth - 1, y - 9, kSize, look.frame,
                  dial.whole ? Format("%4.0f", value) : Format("%5.1f", value));
}

void DrawDial(Graphics& graphics, const Dial& dial, int x, int y, const EngineReadings& readings,
              bool first) {
    constexpr double kLeastShown = 5;
    const double value = readings.*dial.value;
    const double shown = std::min(value, dial.shown_at_most);
    const Look look = LookOf(dial, value);
    const bool alive = shown >= kLeastShown;
    if (alive)
        GdipFillPieI(graphics, BrushOf(look.fill), x, y - kRadius, kSide, kSide, 0, SweepOf(dial, shown));
    DrawScale(graphics, x, y, look.frame);
    if (first) DrawFadecLimits(graphics, dial, x, y);
    if (alive) Spoke(graphics, x, y, SweepOf(dial, shown), 0, 32, PenOf(look.frame, 2));
    if (dial.command != nullptr && readings.*dial.command > 0)
        DrawCommand(graphics, dial, x, y, shown, readings.*dial.command);
    if (alive)
        DrawReadout(graphics, dial, x, y, shown, look);
    else
        BoxOutline(graphics, x + kRadius, y - 17, 35, 15, kWhite);
}

}  // namespace

void DrawDials(Graphics& graphics, const EngineView& engine) {
    const std::span<const Dial> dials = Dials();
    for (std::size_t row = 0; row < dials.size(); ++row)
        if (IsShown(dials[row]))
            DrawDial(graphics, dials[row], engine.right ? kRightX : kLeftX, RowY(row), engine.readings,
                     row == 0);
}

void DrawDialNames(Graphics& graphics) {
    constexpr double kBetween = 362, kBelow = 20;
    constexpr float kSize = 10, kSmall = 7;
    const std::span<const Dial> dials = Dials();
    for (std::size_t row = 0; row < dials.size(); ++row) {
        const Dial& dial = dials[row];
        if (!IsShown(dial)) continue;
        const double y = RowY(row) + kBelow;
        TextAbout(graphics, dial.suffix.empty() ? kBetween : kBetween - 2, y, kSize, kCyanAlternate,
                  dial.name);
        if (!dial.suffix.empty())
            TextFrom(graphics, kBetween + 2, y + 2, kSmall, kCyanAlternate, dial.suffix);
    }
}
