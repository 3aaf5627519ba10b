#include "display/pfd/baro.h"

#include <cmath>

#include "base/text.h"
#include "state/cfg.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr double kHpaPerInch = 33.8637526, kStandardInches = 29.92;
constexpr float kSize = 9, kSmall = 8;

void DrawStandard(const PfdView& view, bool hpa, Rgb colour, bool boxed) {
    Text(view.graphics, boxed ? 95 : 90, 105, kSize, colour, "STD");
    if (boxed) BoxOutline(view.graphics, 94, 105, 25, 13, kAmber);
    Text(view.graphics, 90, 118, kSmall, kWhite, PresetText(hpa));
}

}  // namespace

bool IsBaroCautioned() {
    if (vnav.tod == 1) return false;
    const double transition = cfg.TransAlt;
    if (IsBaroStandard()) return sim.ind_alt_ft < transition && sim.apalt < transition;
    return sim.ind_alt_ft > transition;
}

std::string BaroText(bool hpa) {
    return hpa ? Format("%4.0f", Bounded(sim.baro_hpa, 0, 9999))
               : Format("%2.2f", Bounded(sim.baro_in, 0, 99));
}

std::string PresetText(bool hpa) {
    constexpr double kLeastDifference = 0.005;
    const double preset = instruments.baro_preset;
    if (!(std::fabs(preset - kStandardInches) >= kLeastDifference)) return "";
    const double shown = Bounded(preset, 0, 99);
    return hpa ? Format("%4.0f HPA", shown * kHpaPerInch) : Format("%2.2f IN", shown);
}

void DrawBaro(const PfdView& view) {
    const bool hpa = instruments.pfd[static_cast<std::size_t>(view.side - 1)].baro_hpa == 1;
    const bool cautioned = IsBaroCautioned();
    const Rgb colour = cautioned ? kAmber : kGreen;
    if (IsBaroStandard()) return DrawStandard(view, hpa, colour, cautioned);
    TextFrom(view.graphics, 92, 111, kSize, colour, BaroText(hpa));
    Text(view.graphics, 120, 109, kSmall - 1, colour, hpa ? "HPA" : "IN");
    if (cautioned) BoxOutline(view.graphics, 90, 105, 40, 11, kAmber);
}

void DrawMinimums(const PfdView& view) {
    constexpr float kValueSize = 10;
    const int mode = instruments.minimums_mode;
    const bool alert = mode == kMinimumsAlert;
    if (mode > kMinimumsAlert || (alert && !IsBlinkOn())) return;
    const Rgb colour = alert ? kAmber : kGreen;
    Text(view.graphics, 50, 82, kSmall, colour, instruments.minimums_baro == 1 ? "BARO" : "RADIO");
    Text(view.graphics, 50, 91, kValueSize, colour,
         Format("%3.0f", static_cast<double>(instruments.minimums_value)));
}
