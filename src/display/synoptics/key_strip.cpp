#include "display/synoptics/key_strip.h"

#include "base/area.h"
#include "paint/painter.h"
#include "paint/soft_key.h"
#include "state/synoptics.h"

namespace {

struct PageKey {
    int page;
    std::string_view text;
    SoftKeyBox box;
    Area touch;
    int SynopticState::*status = nullptr;  // null: nothing of this page warns
    bool inked = true;                     // its letters turn amber with its status
};

constexpr int kUpper = -233, kLower = -209, kKeyHeight = 20;
constexpr PageKey kPageKeys[] = {
    {kStatPage, "STAT", {-139, kUpper, 43, kKeyHeight}, {2, 41, 0, 24}},
    {kElecPage, "ELEC", {-92, kUpper, 43, kKeyHeight}, {50, 91, 0, 22}, &SynopticState::elec_status, false},
    {kHydPage, "HYD", {-45, kUpper, 43, kKeyHeight}, {97, 137, 0, 22}, &SynopticState::hyd_status},
    {kFuelPage, "FUEL", {2, kUpper, 43, kKeyHeight}, {143, 184, 0, 22}, &SynopticState::fuel_status},
    {kAirPage, "AIR", {49, kUpper, 43, kKeyHeight}, {191, 231, 0, 22}},
    {kDoorPage, "DOOR", {96, kUpper, 43, kKeyHeight}, {236, 278, 0, 22}, &SynopticState::door_status},
    {kGearPage, "GEAR", {-139, kLower, 52, kKeyHeight}, {2, 51, 30, 48}, &SynopticState::gear_status},
    {kFctlPage, "FCTL", {-83, kLower, 52, kKeyHeight}, {58, 108, 30, 48}, &SynopticState::fctl_status},
    {kEfisDspPage, "EFIS/DSP", {-27, kLower, 52, kKeyHeight}, {114, 164, 30, 48}},
    {kMaintPage, "MAINT", {29, kLower, 53, kKeyHeight}, {171, 221, 30, 48}},
    {kCbPage, "CB", {86, kLower, 53, kKeyHeight}, {227, 277, 30, 48}},
};
constexpr SoftKeyBox kMenuBox{-139, kUpper, 53, kKeyHeight};
constexpr Area kMenuTouch{2, 55, 0, 24};

bool HasOneKey(int page) {
    return page == kCbPage || page == kMaintPage;
}

// A dot on the key of a page that warns, until the page is looked at.
void DrawKey(Graphics& graphics, const PageKey& key, int page) {
    constexpr int kAmberCode = 8, kDot = 5;
    const bool active = key.page == page;
    const bool warns = key.status != nullptr && synoptics.*key.status == kAmberCode;
    DrawSoftKey(graphics, key.box, key.text, {.active = active, .ink = warns && key.inked ? kAmber : kBlack});
    if (warns && !active)
        GdipFillEllipseI(graphics, BrushOf(kAmber), key.box.x + key.box.width - kDot - 2, key.box.y + 2, kDot,
                         kDot);
}

}  // namespace

void DrawSysKeyStrip(Graphics& graphics, int half, int page) {
    constexpr int kMiddle = 141, kMiddleY = 237;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, half == 2 ? kMiddle + kHalf : kMiddle, kMiddleY);
    if (HasOneKey(page)) return DrawSoftKey(graphics, kMenuBox, "SYS MENU", {});
    for (const PageKey& key : kPageKeys) DrawKey(graphics, key, page);
}

int PageOfPress(int page, int x, int y) {
    if (HasOneKey(page)) return kMenuTouch.Has(x, y) ? kStatPage : page;
    for (const PageKey& key : kPageKeys)
        if (key.touch.Has(x, y)) return key.page;
    return page;
}
