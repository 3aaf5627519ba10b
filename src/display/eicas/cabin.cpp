#include "display/eicas/cabin.h"

#include <algorithm>

#include "base/text.h"
#include "display/routing/modes.h"
#include "state/airports.h"
#include "state/alerts.h"
#include "state/displays.h"
#include "state/sim.h"

namespace {

constexpr float kCabinText = 8, kCabinTextSmall = 7;
constexpr int kAirPage = 1;

bool IsAirPageShown() {
    for (int unit = 1; unit <= 5; ++unit) {
        const auto contents = ContentsOf(DisplayModeOf(unit));
        if (!contents) continue;
        if (contents->left == Content::kSys && SystemPageOf(unit, 1) == kAirPage) return true;
        if (contents->right == Content::kSys && SystemPageOf(unit, 2) == kAirPage) return true;
    }
    return false;
}

bool IsWanted() {
    constexpr int kCabinAltitude = 13, kCabinAltitudeAuto = 20, kOutflowAft = 63, kOutflowForward = 64;
    if (eicas.ldg_alt_manual == 1) return true;
    return std::ranges::any_of(
        std::initializer_list<std::size_t>{kCabinAltitude, kCabinAltitudeAuto, kOutflowAft, kOutflowForward},
        [](std::size_t id) { return alerts.posted[id] != 0; });
}

void DrawRow(Graphics& graphics, int x, int y, std::string_view name, const std::string& value) {
    constexpr int kValueEnd = 99;
    EicasLabel(graphics, x, y, kCabinTextSmall - 1, name);
    EicasTextUpTo(graphics, kValueEnd, y + 4, kCabinText, kWhite, value);
}

// The scale is a half circle left of the needle's centre, from shut below to open above.
void DrawValve(Graphics& graphics, int x, double angle, bool fault, double name_x, std::string_view name) {
    constexpr int kY = 112, kSide = 30, kRadius = kSide / 2;
    constexpr double kShut = 90, kHalfTurn = 180;
    GdipDrawArcI(graphics, PenOf(kWhite), x, kY, kSide, kSide, kShut, kHalfTurn);
    const auto spoke = [&](double turned, double from, double to, const Pen& pen) {
        const TransformBlock block(graphics);
        GdipTranslateWorldTransform(graphics, x + kRadius, kY + kRadius);
        GdipRotateWorldTransform(graphics, turned);
        GdipDrawLine(graphics, pen, 0, from, 0, to);
    };
    for (const double mark : {0.0, 90.0, 180.0}) spoke(mark, 11, 15, PenOf(kWhite));
    spoke(std::clamp(angle, 0.0, kHalfTurn), 0, 15, PenOf(fault ? kAmber : kGreen, 2));
    TextAbout(graphics, name_x, kY - 5, kCabinTextSmall, kCyanAlternate, name);
}

}  // namespace

void DrawCabin(Graphics& graphics) {
    if (!IsWanted() || IsAirPageShown()) return;
    constexpr int kLeft = 49;
    DrawRow(graphics, kLeft, 102, "CAB ALT", Format("%.0f", sim.cabin_alt));
    DrawRow(graphics, kLeft, 112, "RATE", Format("%.0f", sim.cabin_rate));
    FillOutline(graphics, BrushOf(kWhite), {At(45, 113), At(48, 116), At(45, 119), At(42, 116)});
    DrawRow(graphics, 55, 122, "P", Format("%1.1f", sim.cabin_dp));
    FillOutline(graphics, BrushOf(kCyanAlternate), {At(51, 124), At(54, 130), At(48, 130)});
    DrawRow(graphics, kLeft, 132, "LDG ALT", Format("%d", airports.dest_airport.elevation_ft));
    EicasText(graphics, 111, 132, kCabinTextSmall - 1, kWhite, eicas.ldg_alt_manual == 1 ? "MAN" : "AUTO");
    constexpr std::size_t kForwardFault = 64, kAftFault = 63;
    DrawValve(graphics, 128, sim.cabin_fwd_ofv, alerts.posted[kForwardFault] != 0, 145, "FWD");
    DrawValve(graphics, 156, sim.cabin_aft_ofv, alerts.posted[kAftFault] != 0, 168, "AFT");
    EicasLabel(graphics, 146, 110, kCabinTextSmall, "OP");
    EicasLabel(graphics, 146, 138, kCabinTextSmall, "CL");
}
