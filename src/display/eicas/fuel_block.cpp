#include "display/eicas/fuel_block.h"

#include <cmath>

#include "base/text.h"
#include "fmc/performance/predictions.h"
#include "state/alerts.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/sim.h"

namespace {

constexpr float kFuelTextSmall = 7, kFuelText = 9;
constexpr Rgb kPanel{22, 26, 34};

void DrawLabel(Graphics& graphics, double x, double y, std::string_view text) {
    EicasLabel(graphics, x, y, kFuelTextSmall, text);
}

std::string Signed(double degrees) {
    return Format("%s%.0fC", degrees < 0 ? "-" : "+", std::fabs(degrees));
}

void DrawTanks(Graphics& graphics) {
    constexpr int kY = 160;
    constexpr std::size_t kImbalance = 99;
    const bool imbalance = alerts.posted[kImbalance] != 0;
    const auto tank = [&](double x, double lb, bool low) {
        EicasText(graphics, x, kY, kFuelText, low ? kAmber : kWhite, Format("%-2.1f", ThousandsOf(lb)));
    };
    tank(68, sim.left_fuel, imbalance && sim.left_fuel < sim.right_fuel);
    tank(101, sim.centre_fuel, false);
    tank(136, sim.right_fuel, imbalance && sim.right_fuel < sim.left_fuel);
    // Where fuel goes across, or ought to.
    if (!imbalance && cockpit.fuelpump_crosfeed_button == 0) return;
    const Brush brush = BrushOf(imbalance ? kAmber : kGreen);
    const bool to_left = sim.left_fuel <= sim.right_fuel;
    if (to_left)
        FillOutline(graphics, brush, {At(60, 165), At(66, 161), At(66, 169)});
    else
        FillOutline(graphics, brush, {At(166, 165), At(160, 161), At(160, 169)});
}

}  // namespace

void DrawFuelBlock(Graphics& graphics) {
    constexpr int kLeft = 49, kTop = 150, kWidth = 128, kHeight = 68;
    FilledBox(graphics, kLeft, kTop, kWidth, kHeight, kPanel);
    BoxOutline(graphics, kLeft, kTop, kWidth - 1, kHeight, kGreyPen);
    DrawLabel(graphics, 94, kTop + 1, "FUEL QTY");
    DrawTanks(graphics);
    DrawLabel(graphics, 53, 175, "GROSS WT");
    EicasText(graphics, 59, 186, kFuelText, kWhite, Format("%-3.1f", ThousandsOf(GrossWeight())));
    DrawLabel(graphics, 100, 181, cfg.WeightUnit == "KGS" ? "KGS X" : "LBS X");
    DrawLabel(graphics, 103, 190, "1000");
    EicasLabel(graphics, 130, 173, kFuelTextSmall - 1, "TOTAL FUEL");
    BoxOutline(graphics, 138, 183, 30, 16, kWhite);
    EicasTextUpTo(graphics, 167, 191, kFuelText, kWhite, Format("%.1f", ThousandsOf(sim.total_fuel)));
    DrawLabel(graphics, 53, 205, "SAT");
    EicasText(graphics, 70, 203, kFuelText, kWhite, Signed(sim.oat_c));
    DrawLabel(graphics, 121, 202, "FUEL");
    DrawLabel(graphics, 121, 210, "TEMP");
    BoxOutline(graphics, 152, 203, 23, 12, kWhite);
    EicasTextUpTo(graphics, 174, 209, kFuelTextSmall, kWhite, Signed(eicas.fuel_temp));
}
