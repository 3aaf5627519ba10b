#include "display/pictures/compose.h"

#include "display/formats/format_table.h"
#include "display/routing/modes.h"
#include "paint/painter.h"
#include "state/displays.h"

namespace {

constexpr int kWidth = 564, kHeight = 424;

void DrawContent(Graphics& graphics, Content content, int mode, int unit, int half) {
    GdipResetWorldTransform(graphics);
    GdipResetClip(graphics);
    if (const DisplayFormat* format = FindFormat(content))
        format->draw(graphics, PlaceOf(content, mode, unit, half));
}

void DrawContents(Graphics& graphics, int mode, int unit) {
    const auto contents = ContentsOf(mode);
    if (!contents) return;
    DrawContent(graphics, contents->left, mode, unit, 1);
    if (mode != kModeWideNd) DrawContent(graphics, contents->right, mode, unit, 2);
    GdipResetWorldTransform(graphics);
    GdipResetClip(graphics);
}

void DrawDivider(Graphics& graphics, int mode) {
    constexpr int kBarWidth = 3, kBarHeight = 425;
    constexpr Rgb kGrey{82, 82, 82};
    const int x = mode == 1 ? 181 : mode == 2 ? 381 : 281;
    FilledBox(graphics, x, 0, kBarWidth, kBarHeight, kBlack);
    Line(graphics, x - 1, 0, x - 1, kBarHeight, kGrey, 2);
    Line(graphics, x + kBarWidth, 0, x + kBarWidth, kBarHeight, kGrey, 2);
}

}  // namespace

bool ComposeDisplayUnit(Graphics& graphics, int mode, int unit, int gauge_id) {
    int& busy = displays.compose_busy[static_cast<std::size_t>(gauge_id)];
    if (busy == 1) return false;
    busy = 1;
    GdipResetWorldTransform(graphics);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), 0, 0, kWidth, kHeight);
    DrawContents(graphics, mode, unit);
    if (mode != kModeWideNd && mode != kModeFree) DrawDivider(graphics, mode);
    busy = 0;
    return true;
}
