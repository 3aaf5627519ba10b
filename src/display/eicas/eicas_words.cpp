#include "display/eicas/eicas_words.h"

#include "fmc/performance/predictions.h"
#include "paint/fonts.h"
#include "state/identity.h"

namespace {
constexpr std::string_view kFamily = "Velarion900EICAS";
}

void EicasText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    TextIn(graphics, kFamily, x, y, size, colour, text);
}

void EicasTextUpTo(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    constexpr float kPadding = 1.0f / 6, kHalfFigure = 0.36f;  // of the em
    const std::uint16_t family = FamilyOf(kFamily);
    const double left = x - static_cast<double>((TextWidth(family, text) + kPadding) * size);
    EicasText(graphics, left, y - static_cast<double>((MetricsOf(family).ascent - kHalfFigure) * size), size,
              colour, text);
}

bool HasThrustRatioDials() {
    return identity.engine_model == "TRENT 1000";
}

double ThousandsOf(double lb) {
    constexpr double kThousand = 1000;
    return DisplayWeight(lb) / kThousand;
}
