#include "display/synoptics/sys_words.h"

#include "base/area.h"

namespace {

constexpr float kLabelText = 8, kValueText = 10, kTitleText = 11;
constexpr float kThin = 1, kLiveLine = 2;

}  // namespace

bool IsOnKey(const SoftKeyBox& box, const FormatTouch& at) {
    const int left = box.x - kPageLeft;
    return Area{left, left + box.width, box.y, box.y + box.height}.Has(at.x, at.y);
}

Rgb ColourOf(FlowState state) {
    switch (state) {
        case FlowState::kLive:
            return kGreen;
        case FlowState::kWarning:
            return kAmber;
        case FlowState::kPlain:
            return kWhite;
        case FlowState::kDead:
            break;
    }
    return kBlueGrey;
}

void DrawSysBox(const SysPage& page, int x, int y, int width, int height, FlowState state, bool filled) {
    constexpr int kCut = 3;
    const int right = x + width, foot = y + height;
    const std::initializer_list<PaintPoint> outline = {
        At(x + kCut, y),        At(right - kCut, y), At(right, y + kCut), At(right, foot - kCut),
        At(right - kCut, foot), At(x + kCut, foot),  At(x, foot - kCut),  At(x, y + kCut)};
    if (filled) FillOutline(page.graphics, BrushOf(kBlack), outline);
    DrawOutline(page.graphics, PenOf(ColourOf(state)), outline);
}

void DrawUser(const SysPage& page, int x, int y, int width, int height, FlowState state,
              std::initializer_list<std::string_view> words) {
    constexpr double kStep = 9;
    DrawSysBox(page, x, y, width, height, state, true);
    double middle = y + height / 2.0 - kStep / 2 * static_cast<double>(words.size() - 1);
    const Rgb colour = state == FlowState::kDead ? kWhite : ColourOf(state);
    for (const std::string_view word : words) {
        TextAbout(page.graphics, x + width / 2.0, middle, kLabelText, colour, word);
        middle += kStep;
    }
}

namespace {

void DrawDiamond(const SysPage& page, int x, int y, int reach, FlowState state, bool filled) {
    const std::initializer_list<PaintPoint> outline = {At(x, y - reach), At(x + reach, y), At(x, y + reach),
                                                       At(x - reach, y)};
    if (filled)
        FillOutline(page.graphics, BrushOf(ColourOf(state)), outline);
    else
        DrawOutline(page.graphics, PenOf(ColourOf(state)), outline);
}

}  // namespace

void DrawFlowArrow(const SysPage& page, int x, int y, FlowState state, bool filled) {
    DrawDiamond(page, x, y, 5, state, filled);
}

void DrawFlowTick(const SysPage& page, int x, int y, FlowState state, bool filled) {
    DrawDiamond(page, x, y, 3, state, filled);
}

void DrawFlow(const SysPage& page, std::initializer_list<IntPoint> points, FlowState state) {
    const Pen pen = PenOf(ColourOf(state), state == FlowState::kLive ? kLiveLine : kThin);
    GdipDrawLinesI(page.graphics, pen, {points.begin(), points.size()});
}

void DrawPump(const SysPage& page, int x, int y, int width, int height, FlowState state) {
    const Pen pen = PenOf(ColourOf(state), kThin);
    const int left = x - width / 2, top = y - height / 2;
    GdipFillEllipseI(page.graphics, BrushOf(kBlack), left, top, width, height);
    GdipDrawEllipseI(page.graphics, pen, left, top, width, height);
    const double reach = width / 4.0;
    const std::initializer_list<PaintPoint> head = {At(x, y - reach), At(x + reach, y + reach),
                                                    At(x - reach, y + reach)};
    if (state == FlowState::kLive)
        FillOutline(page.graphics, BrushOf(kGreen), head);
    else
        DrawOutline(page.graphics, pen, head);
}

void DrawValve(const SysPage& page, int x, int y, bool open, bool line_is_level, FlowState state) {
    constexpr int kSide = 14, kReach = kSide / 2;
    const Pen pen = PenOf(ColourOf(state), kThin), bar = PenOf(ColourOf(state), kLiveLine);
    GdipFillEllipseI(page.graphics, BrushOf(kBlack), x - kReach, y - kReach, kSide, kSide);
    GdipDrawEllipseI(page.graphics, pen, x - kReach, y - kReach, kSide, kSide);
    if (open == line_is_level)
        GdipDrawLineI(page.graphics, bar, x - kReach, y, x + kReach, y);
    else
        GdipDrawLineI(page.graphics, bar, x, y - kReach, x, y + kReach);
}

void DrawSysLabel(const SysPage& page, double x, double y, std::string_view text) {
    TextAbout(page.graphics, x, y, kLabelText, kBlueGrey, text);
}

void DrawSysValue(const SysPage& page, double x, double y, std::string_view text, Rgb colour) {
    TextAbout(page.graphics, x, y, kValueText, colour, text);
}

void DrawLineLabel(const SysPage& page, double x, double y, std::string_view text) {
    constexpr double kLetter = 4.8, kHeight = 10;
    const double width = kLetter * static_cast<double>(text.size()) + 2;
    FilledRectangle(page.graphics, BrushOf(kBlack), x - width / 2, y - kHeight / 2, width, kHeight);
    DrawSysLabel(page, x, y, text);
}

void DrawSysTitle(const SysPage& page, double x, double y, std::string_view text) {
    TextAbout(page.graphics, x, y, kTitleText, kWhite, text);
}
