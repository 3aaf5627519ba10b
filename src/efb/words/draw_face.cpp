#include "efb/words/draw_face.h"

#include <algorithm>
#include <cmath>

#include "paint/fonts.h"
#include "state/efb.h"

namespace {

constexpr const char* kFamily = "Arial";
constexpr float kTextPadding = 1.0f / 6;  // of the em, which stands before a text

Argb Shade(Rgb colour) {
    const double brightness = std::isfinite(efb.EfbBrightness) ? std::clamp(efb.EfbBrightness, 0.0, 1.0) : 0;
    const auto channel = [&](int base) { return static_cast<int>(base * brightness); };
    return Opaque({channel(colour.r), channel(colour.g), channel(colour.b)});
}

struct LookColours {
    Rgb fill, edge, ink;
};
LookColours ColoursOf(TabletLook look) {
    switch (look) {
        case TabletLook::kPanel:
            return {{38, 46, 56}, {80, 92, 106}, kTabletInk};
        case TabletLook::kButton:
            return {{58, 78, 100}, {120, 140, 160}, kTabletInk};
        case TabletLook::kChosen:
            return {{40, 110, 70}, {140, 200, 160}, kTabletInk};
        case TabletLook::kGrey:
            return {{48, 54, 60}, {72, 78, 84}, kTabletGrey};
        case TabletLook::kField:
            return {{14, 18, 22}, {110, 126, 142}, {120, 220, 250}};
        case TabletLook::kEdited:
            return {{60, 56, 12}, {240, 220, 90}, {255, 245, 170}};
        case TabletLook::kKey:
            return {{70, 76, 84}, {104, 110, 118}, kTabletInk};
    }
    return {};
}

float WidthOf(std::string_view text) {
    return TextWidth(FamilyOf(kFamily), text);
}

void DrawText(Graphics& graphics, double x, double y, float size, Rgb colour, std::string_view text) {
    const LayoutRect anchor{static_cast<float>(x) - kTextPadding * size, static_cast<float>(y), 0, 0};
    GdipDrawString(graphics, text, GdipCreateFont(FamilyOf(kFamily), size), anchor, nullptr,
                   GdipCreateSolidFill(Shade(colour)));
}

void DrawLineOfItem(Graphics& graphics, const TabletItem& item, std::string_view text, double middle,
                    float largest, Rgb ink) {
    constexpr int kEdges = 6;
    constexpr float kSmallest = 5;
    if (text.empty()) return;
    const float ems = WidthOf(text);
    const auto room = static_cast<float>(item.box.width - kEdges);
    const float size = std::clamp(room / std::max(ems, 0.1f), kSmallest, largest);
    const bool from_left = item.look == TabletLook::kField || item.look == TabletLook::kEdited;
    const double wide = static_cast<double>(ems) * size;
    const double x = from_left ? item.box.x + 4.0 : item.box.x + (item.box.width - wide) / 2.0;
    const float line = MetricsOf(FamilyOf(kFamily)).line_spacing * size;
    DrawText(graphics, x, middle - line / 2.0, size, ink, text);
}

void DrawItem(Graphics& graphics, const TabletItem& item) {
    constexpr float kOneLine = 10, kTwoLines = 9;
    const TabletBox& box = item.box;
    const LookColours colours = ColoursOf(item.look);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Shade(colours.fill)), box.x, box.y, box.width,
                       box.height);
    GdipDrawRectangleI(graphics, GdipCreatePen1(Shade(colours.edge), 1), box.x, box.y, box.width, box.height);
    const std::string_view text = item.text;
    const double middle = box.y + box.height / 2.0;
    const std::size_t break_at = text.find('\n');
    if (break_at == std::string_view::npos)
        return DrawLineOfItem(graphics, item, text, middle, kOneLine, colours.ink);
    DrawLineOfItem(graphics, item, text.substr(0, break_at), middle - 5.5, kTwoLines, colours.ink);
    DrawLineOfItem(graphics, item, text.substr(break_at + 1), middle + 5.5, kTwoLines, colours.ink);
}

}  // namespace

void DrawFace(Graphics& graphics, const TabletFace& face) {
    constexpr Rgb kGround{24, 30, 38}, kPressed{255, 255, 255};
    GdipGraphicsClear(graphics, Shade(kGround));
    for (const TabletText& text : face.texts) {
        const double shift = text.align == TabletAlign::kMiddle ? WidthOf(text.text) * text.size / 2.0 : 0;
        DrawText(graphics, text.x - shift, text.y, text.size, text.colour, text.text);
    }
    for (const TabletItem& item : face.items) DrawItem(graphics, item);
    const EfbSide& tablet = EfbOf(face.side);
    if (tablet.touch_ticks == 0) return;
    const TabletItem* touched = face.At(tablet.EfbMouseX, tablet.EfbMouseY);
    if (touched == nullptr || !touched->IsTouchable()) return;
    const TabletBox& box = touched->box;
    GdipDrawRectangleI(graphics, GdipCreatePen1(Shade(kPressed), 1), box.x - 2, box.y - 2, box.width + 4,
                       box.height + 4);
}
