#include "display/pfd/pfd_view.h"

#include "paint/fonts.h"
#include "paint/recording.h"
#include "state/cfg.h"
#include "state/displays.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr float kPadding = 1.0f / 6;  // of the em, which stands before a text
constexpr int kStackStep = 8;

float WidthOf(std::string_view text, float size) {
    return TextWidth(FamilyOf(cfg.DuFont), text) * size;
}

// From the top of a line's cell to the middle of its figures.
double MiddleOfFigures(float size) {
    constexpr float kHalfFigure = 0.36f;  // of the em
    return (MetricsOf(FamilyOf(cfg.DuFont)).ascent - kHalfFigure) * size;
}

}  // namespace

bool IsPfdLit() {
    return IsPoweredBeyondBattery() && displays.du_pfd_ah_startup_cnt == 10;
}

bool IsOnCaptains(const PfdView& view) {
    return view.side == kCaptain;
}

double HorizonOffset() {
    return -Bounded(sim.pitch_deg, -180, 180) * kUnitsPerDegree;
}

bool IsBaroStandard() {
    return sim.baro_hpa >= 1013 && sim.baro_hpa < 1013.4;
}

bool IsBlinkOn() {
    return time_base.tick_phase <= 7;
}

Brush TapeFill() {
    constexpr Rgb kTape{139, 156, 175};
    constexpr Argb kAlpha = 51;
    return GdipCreateSolidFill(kAlpha << 24 | (Scaled(kTape) & 0xffffff));
}

Pen TapeFrame() {
    constexpr int kAlpha = 77;
    const Argb alpha = Scaled({kAlpha, 0, 0}) >> 16 & 255;
    return GdipCreatePen1(alpha << 24, 1);
}

void DrawOutline(Graphics& graphics, const Pen& pen, std::initializer_list<PaintPoint> points) {
    GraphicsPath& path = ScratchPath(graphics);
    for (const PaintPoint& point : points) {
        path.verbs.push_back(path.points.empty() ? PathVerb::kMove : PathVerb::kLine);
        path.points.push_back(point);
    }
    path.verbs.push_back(PathVerb::kClose);
    GdipDrawPath(graphics, pen, path);
}

void FillOutline(Graphics& graphics, const Brush& brush, std::initializer_list<PaintPoint> points) {
    GdipFillPolygon(graphics, brush, {points.begin(), points.size()});
}

void FilledRectangle(Graphics& graphics, const Brush& brush, double x, double y, double width,
                     double height) {
    FillOutline(graphics, brush, {At(x, y), At(x + width, y), At(x + width, y + height), At(x, y + height)});
}

ClipBlock::ClipBlock(Graphics& graphics, int x, int y, int width, int height) : graphics_(graphics) {
    GraphicsPath& path = ScratchPath(graphics);
    GdipAddPathRectangleI(path, x, y, width, height);
    GdipSetClipPath(graphics, path);
}

void TextAbout(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    CentredText(graphics, x, y - MiddleOfFigures(size), size, colour, text);
}

void TextUpTo(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    Text(graphics, x - WidthOf(text, size) - kPadding * size, y - MiddleOfFigures(size), size, colour, text);
}

void TextFrom(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    Text(graphics, x - kPadding * size, y - MiddleOfFigures(size), size, colour, text);
}

void StackedText(Graphics& graphics, double x, double y, float size, Rgb colour,
                 std::initializer_list<std::string_view> words) {
    for (const std::string_view word : words) {
        TextAbout(graphics, x, y, size, colour, word);
        y += kStackStep;
    }
}

void DrawFlag(Graphics& graphics, int x, int y, int width, int height, std::string_view text) {
    constexpr float kSize = 8;
    FilledBox(graphics, x, y, width, height, kBlack);
    BoxOutline(graphics, x, y, width, height, kAmber);
    TextAbout(graphics, x + width / 2.0, y + height / 2.0, kSize, kAmber, text);
}
