#include "display/compose.h"

#include "display/modes.h"
#include "paint/painter.h"
#include "state/displays.h"

namespace {

constexpr int kWidth = 564, kHeight = 424, kHalf = 282;

// A format that isn't built yet shows its name in the middle of its place, so that routing can be seen.
void DrawName(Graphics& graphics, int x, int width, int height, const char* name) {
    const float size = 20;
    const double text = static_cast<double>(std::string_view(name).size()) * 0.6 * size;
    Text(graphics, x + (width - text) / 2 - size / 6, height / 2.0 - size, size, kBlueGrey, name);
}

// The white stands unscaled.
void DrawSelect(Graphics& graphics, int left) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(0xffdee6e9), left + 81, 186, 120, 24);
    TextIn(graphics, "Velarion900DispL", left + 88, 190, 14, kBlack, "SELECT MFD");
}

struct Place {
    int left, width;
};

// Where a content stands: the PFD beside the auxiliary strip takes what that leaves.
Place PlaceOf(int mode, int half) {
    if (mode == 1) return half == 1 ? Place{0, 182} : Place{182, 382};
    if (mode == 2) return half == 1 ? Place{0, 382} : Place{382, 182};
    return half == 1 ? Place{0, kHalf} : Place{kHalf, kHalf};
}

void DrawContent(Graphics& graphics, Content content, int mode, int half) {
    const Place place = PlaceOf(mode, half);
    switch (content) {
        case Content::kNone:
            break;
        case Content::kSelect:
            DrawSelect(graphics, place.left);
            break;
        case Content::kInfo:
            DrawName(graphics, place.left, place.width, kHeight, ContentName(content));
            if (displays.info_page != 1 && displays.info_status > 0) displays.info_status = 0;
            break;
        default:
            DrawName(graphics, place.left, place.width, kHeight, ContentName(content));
            break;
    }
}

void DrawDivider(Graphics& graphics, int mode) {
    const int x = mode == 1 ? 181 : mode == 2 ? 381 : 281;
    FilledBox(graphics, x, 0, 3, 425, kBlack);
    constexpr Rgb kGrey{82, 82, 82};
    Line(graphics, x - 1, 0, x - 1, 425, kGrey, 2);
    Line(graphics, x + 3, 0, x + 3, 425, kGrey, 2);
}

}  // namespace

void ComposeDisplayUnit(Graphics& graphics, int mode, int, int) {
    GdipResetWorldTransform(graphics);
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), 0, 0, kWidth, kHeight);
    if (const auto contents = ContentsOf(mode)) {
        if (mode == kModeWideNd) {
            DrawName(graphics, 0, kWidth, kHeight, ContentName(Content::kNd));
        } else {
            DrawContent(graphics, contents->left, mode, 1);
            DrawContent(graphics, contents->right, mode, 2);
        }
    }
    if (mode != kModeWideNd && mode != kModeFree) DrawDivider(graphics, mode);
}

void DrawStandbyPfd(Graphics& graphics) {
    DrawName(graphics, 0, 100, 92, "STBY");
}
void DrawHud(Graphics& graphics) {
    DrawName(graphics, 0, 480, 410, "HUD");
}
void DrawEfb(Graphics& graphics, int side) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), 0, 0, 340, 448);
    DrawName(graphics, 0, 340, 448, side == 1 ? "EFB L" : "EFB R");
}
void DrawDebug(Graphics& graphics) {
    DrawName(graphics, 0, kWidth, kHeight, "DEBUG");
}
