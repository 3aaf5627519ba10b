#include "display/hud/hud_view.h"

#include "display/pfd/drum.h"
#include "paint/fonts.h"
#include "state/cfg.h"
#include "state/instruments.h"

namespace {

constexpr float kPadding = 1.0f / 6;  // of the em, which stands before a text
constexpr float kDrumSize = 12;

double WidthOfText(std::string_view text, float size) {
    return static_cast<double>(TextWidth(FamilyOf(cfg.DuFont), text) * size);
}

}  // namespace

bool IsDecluttered() {
    return instruments.hud_declutter == 1;
}

Pen HudPen(double width) {
    return GdipCreatePen1(kHudColour, static_cast<float>(width));
}

Brush HudBrush() {
    return GdipCreateSolidFill(kHudColour);
}

void HudLine(Graphics& graphics, double x1, double y1, double x2, double y2) {
    GdipDrawLine(graphics, HudPen(), x1, y1, x2, y2);
}

void HudBox(Graphics& graphics, double x, double y, double width, double height) {
    DrawOutline(graphics, HudPen(),
                {At(x, y), At(x + width, y), At(x + width, y + height), At(x, y + height)});
}

void HudText(Graphics& graphics, double x, double y, float size, std::string_view text) {
    const LayoutRect anchor{static_cast<float>(x), static_cast<float>(y), 0, 0};
    GdipDrawString(graphics, text, GdipCreateFont(FamilyOf(cfg.DuFont), size), anchor, nullptr, HudBrush());
}

void HudTextFrom(Graphics& graphics, double x, double y, float size, std::string_view text) {
    constexpr float kHalfFigure = 0.36f;  // of the em
    const float middle = (MetricsOf(FamilyOf(cfg.DuFont)).ascent - kHalfFigure) * size;
    HudText(graphics, x - static_cast<double>(kPadding * size), y - static_cast<double>(middle), size, text);
}

void HudTextUpTo(Graphics& graphics, double x, double y, float size, std::string_view text) {
    HudTextFrom(graphics, x - WidthOfText(text, size), y, size, text);
}

void HudTextAbout(Graphics& graphics, double x, double y, float size, std::string_view text) {
    HudTextFrom(graphics, x - WidthOfText(text, size) / 2, y, size, text);
}

void HudDrum(Graphics& graphics, double x, double value, double place, double step, bool blank) {
    const auto digit = [&](int number, double y) {
        const char text = static_cast<char>('0' + number % 10);
        HudTextAbout(graphics, x, y, kDrumSize, {&text, 1});
    };
    const DrumDigit drum = DigitOnDrum(value, place, step);
    const double offset = drum.rolled * static_cast<double>(kDrumSize);
    if (!blank) digit(drum.digit, offset);
    if (drum.rolled > 0) digit(drum.digit + 1, offset - static_cast<double>(kDrumSize));
}

void ClipAround(Graphics& graphics, const HudArea& outer, const HudArea& inner) {
    GraphicsPath path = GdipCreatePath();
    for (const HudArea& area : {outer, inner})
        GdipAddPathRectangleI(path, area.x, area.y, area.width, area.height);
    GdipSetClipPath(graphics, path);
}
