#include "display/pictures/compose.h"

#include "cdu/unit/cdu_format.h"
#include "display/formats/aux_strip.h"
#include "display/formats/content_place.h"
#include "display/routing/modes.h"
#include "paint/painter.h"
#include "state/displays.h"
#include "state/nd.h"
#include "state/side.h"

namespace {

constexpr int kWidth = 564, kHeight = 424, kHalf = 282;

// The white stands unscaled.
void DrawSelectPrompt(Graphics& graphics, const ContentPlace& place) {
    constexpr Argb kFill = 0xffdee6e9;
    constexpr int kTop = 190, kBoxWidth = 120, kBoxHeight = 24;
    const int middle = (place.half == 1 ? 0 : kHalf) + kHalf / 2;
    GdipFillRectangleI(graphics, GdipCreateSolidFill(kFill), middle - kBoxWidth / 2, kTop - 4, kBoxWidth,
                       kBoxHeight);
    CentredText(graphics, middle, kTop, 14, kBlack, "SELECT MFD");
}

void DrawCduContent(Graphics& graphics, const ContentPlace& place) {
    DrawCdu(graphics, place.half, place.unit);
}

struct ContentRow {
    Content content;
    void (*draw)(Graphics& graphics, const ContentPlace& place);
};
constexpr ContentRow kContents[] = {
    {Content::kAux, DrawAuxStrip},
    {Content::kCdu, DrawCduContent},
    {Content::kSelect, DrawSelectPrompt},
};

// A format that isn't built yet shows its name in the middle of its place, so that routing can be seen.
void DrawName(Graphics& graphics, double middle, double height, const char* name) {
    constexpr float kSize = 20;
    CentredText(graphics, middle, height / 2 - kSize, kSize, kBlueGrey, name);
}

// The middle of a half; the PFD beside the auxiliary strip has what that leaves.
double MiddleOf(const ContentPlace& place) {
    constexpr double kStrip = 182;
    if (place.mode == kModeWideNd) return kWidth / 2.0;
    const double boundary = place.mode == 1 ? kStrip : place.mode == 2 ? kWidth - kStrip : kHalf;
    return place.half == 1 ? boundary / 2 : (boundary + kWidth) / 2;
}

int SideOf(Content content, int unit, int half) {
    if (unit <= 2) return kCaptain;
    if (unit <= 4) return kFirstOfficer;
    return content == Content::kNd || half == 1 ? kCaptain : kFirstOfficer;
}

ContentPlace PlaceOf(Content content, int mode, int unit, int half) {
    ContentPlace place{.mode = mode,
                       .unit = unit,
                       .half = half,
                       .side = SideOf(content, unit, half),
                       .narrow = content == Content::kPfd && mode >= 80 && mode <= 87,
                       .vsd = false,
                       .system_page = SystemPageOf(unit, half)};
    if (content == Content::kNd) {
        constexpr int kMap = 3;
        const NdSide& map = NdOf(place.side);
        place.unit = place.side == kCaptain ? 2 : 3;
        place.vsd = map.nd_mode == kMap && map.nd_vsd == 1;
    }
    return place;
}

void DrawContent(Graphics& graphics, Content content, const ContentPlace& place) {
    GdipResetWorldTransform(graphics);
    GdipResetClip(graphics);
    const ContentRow* row = nullptr;
    for (const ContentRow& candidate : kContents)
        if (candidate.content == content) row = &candidate;
    if (row != nullptr)
        row->draw(graphics, place);
    else
        DrawName(graphics, MiddleOf(place), kHeight, ContentName(content));
    // What the crew has been told on the first information page is told once.
    if (content == Content::kInfo && displays.info_page != 1 && displays.info_status > 0)
        displays.info_status = 0;
}

void DrawContents(Graphics& graphics, int mode, int unit) {
    const auto contents = ContentsOf(mode);
    if (!contents) return;
    DrawContent(graphics, contents->left, PlaceOf(contents->left, mode, unit, 1));
    if (mode != kModeWideNd) DrawContent(graphics, contents->right, PlaceOf(contents->right, mode, unit, 2));
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

void DrawStandbyPfd(Graphics& graphics) {
    DrawName(graphics, 50, 92, "STBY");
}
void DrawHud(Graphics& graphics) {
    DrawName(graphics, 240, 410, "HUD");
}
void DrawEfb(Graphics& graphics, int side) {
    GdipFillRectangleI(graphics, GdipCreateSolidFill(Opaque(kBlack)), 0, 0, 340, 448);
    DrawName(graphics, 170, 448, side == kCaptain ? "EFB L" : "EFB R");
}
void DrawDebug(Graphics& graphics) {
    DrawName(graphics, kWidth / 2.0, kHeight, "DEBUG");
}
