#include "display/eicas/trims.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "state/alerts.h"
#include "state/sim.h"
#include "state/surfaces.h"

namespace {

constexpr float kTrimText = 8;
constexpr double kDeadZone = 0.005;

bool IsRudderTrimmed() {
    return std::fabs(sim.rudder_trim) > kDeadZone;
}

bool AreShown() {
    constexpr std::size_t kCutout = 116, kLeft = 117, kRight = 118;
    return sim.on_ground != 0 || IsRudderTrimmed() || alerts.posted[kCutout] != 0 ||
           alerts.posted[kLeft] != 0 || alerts.posted[kRight] != 0;
}

void DrawStabilizer(Graphics& graphics) {
    constexpr int kScaleX = 97, kTop = 48, kBottom = 92, kTitleX = 44;
    constexpr double kMostUnits = 16, kFirstForTakeoff = 3, kLastForTakeoff = 9;
    const auto y_of = [](double units) { return kTop + (kBottom - kTop) * units / kMostUnits; };
    double title_y = 53;
    for (const std::string_view letter : {"S", "T", "A", "B"}) {
        EicasLabel(graphics, kTitleX, title_y, kTrimText, letter);
        title_y += 10;
    }
    EicasLabel(graphics, 72, 43, kTrimText - 1, "UNITS");
    const double units = std::clamp(surfaces.elev_trim_ind, 0.0, kMostUnits);
    const bool in_band = units >= kFirstForTakeoff && units <= kLastForTakeoff;
    const Rgb colour = in_band ? kGreen : kWhite;
    const std::string value = Format("%.2f", surfaces.elev_trim_ind);
    if (in_band) {
        BoxOutline(graphics, 54, 62, 30, 14, kGreen);
        EicasText(graphics, 56, 65, kTrimText, kGreen, value);
    } else {
        EicasText(graphics, 56, 54, kTrimText, kWhite, value);
    }
    Line(graphics, kScaleX, kTop, kScaleX, kBottom, kWhite);
    Line(graphics, kScaleX, y_of(kFirstForTakeoff), kScaleX, y_of(kLastForTakeoff), kGreen, 3);
    for (int tick = 0; tick <= 16; tick += 4)
        Line(graphics, kScaleX - 3, y_of(tick), kScaleX, y_of(tick), kWhite);
    const double y = y_of(units);
    FillOutline(graphics, BrushOf(colour),
                {At(kScaleX + 1, y), At(kScaleX + 5, y - 3), At(kScaleX + 5, y + 3)});
}

void DrawRudder(Graphics& graphics) {
    constexpr int kY = 82, kLeft = 130, kMiddle = 150, kRight = 172;
    const double trim = std::clamp(sim.rudder_trim, -1.0, 1.0);
    Line(graphics, kLeft, kY, kRight, kY, kWhite);
    for (const int tick : {kLeft, kMiddle, kRight}) Line(graphics, tick, kY - 4, tick, kY, kWhite);
    EicasLabel(graphics, kLeft - 8, 85, kTrimText - 1, "RUDDER TRIM");
    BoxOutline(graphics, 139, 52, 20, 14, kWhite);
    if (IsRudderTrimmed()) EicasText(graphics, kLeft, 54, kTrimText, kWhite, trim < 0 ? "L" : "R");
    EicasText(graphics, 139, 54, kTrimText, kWhite, Format("%.1f", std::fabs(trim)));
    const double x = kMiddle + trim * (trim < 0 ? kMiddle - kLeft : kRight - kMiddle);
    FillOutline(graphics, BrushOf(kWhite), {At(x, kY - 1), At(x - 4, kY - 8), At(x + 4, kY - 8)});
}

}  // namespace

void DrawTrims(Graphics& graphics) {
    if (!AreShown()) return;
    DrawStabilizer(graphics);
    DrawRudder(graphics);
}
