#include "paint/soft_key.h"

#include <algorithm>

#include "paint/fonts.h"
#include "paint/painter.h"
#include "state/cfg.h"

namespace {

constexpr Rgb kFace{161, 161, 161}, kLightEdge{200, 200, 200}, kDarkEdge{82, 82, 82},
    kDarkestEdge{42, 42, 42};
constexpr float kTextSize = 9, kSmallTextSize = 8;

// As large as it may be, and as fits into the key.
float SizeOf(std::string_view text, int width) {
    constexpr float kEdges = 5, kSmallest = 5;
    const float ems = TextWidth(FamilyOf(cfg.DuFont), text);
    return ems > 0 ? std::clamp((static_cast<float>(width) - kEdges) / ems, kSmallest, kTextSize) : kTextSize;
}

void DrawBevel(Graphics& graphics, const SoftKeyBox& box, bool pressed) {
    const int right = box.x + box.width, foot = box.y + box.height;
    const Rgb upper = pressed ? kDarkestEdge : kLightEdge, lower = pressed ? kLightEdge : kDarkestEdge;
    FilledBox(graphics, box.x, box.y, box.width, box.height, kFace);
    Line(graphics, box.x, foot, box.x, box.y, upper);
    Line(graphics, box.x, box.y, right, box.y, upper);
    Line(graphics, box.x + 1, foot - 1, right - 1, foot - 1, kDarkEdge);
    Line(graphics, right - 1, foot - 1, right - 1, box.y + 1, kDarkEdge);
    Line(graphics, box.x, foot, right, foot, lower);
    Line(graphics, right, foot, right, box.y, lower);
}

}  // namespace

void DrawSoftKey(Graphics& graphics, const SoftKeyBox& box, std::string_view text, const SoftKeyLook& look) {
    DrawBevel(graphics, box, look.active);
    const double middle = box.x + box.width / 2.0;
    const Rgb colour = look.enabled ? look.ink : kDarkEdge;
    const std::size_t line_end = text.find('\n');
    if (line_end == std::string_view::npos) {
        if (look.visible)
            CentredText(graphics, middle, box.y + box.height / 2.0 - 6, SizeOf(text, box.width), colour,
                        text);
    } else if (look.visible) {
        CentredText(graphics, middle, box.y, kSmallTextSize, colour, text.substr(0, line_end));
        CentredText(graphics, middle, box.y + 9, kSmallTextSize, colour, text.substr(line_end + 1));
    }
    constexpr int kInset = 4;
    if (look.active)
        Line(graphics, box.x + kInset, box.y + box.height - 3, box.x + box.width - kInset,
             box.y + box.height - 3, kGreen, 2);
}
