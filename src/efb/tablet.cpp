#include "efb/tablet.h"

#include <iterator>
#include <string>
#include <string_view>

#include "efb/pages/airport_search_page.h"
#include "efb/pages/landing_page.h"
#include "efb/pages/later_page.h"
#include "efb/pages/main_menu_page.h"
#include "efb/pages/option_lists.h"
#include "efb/pages/pages.h"
#include "efb/pages/send_page.h"
#include "efb/pages/takeoff_page.h"
#include "efb/words/draw_face.h"
#include "efb/words/keyboard.h"
#include "state/efb.h"
#include "state/power_words.h"
#include "state/side.h"

namespace {

struct TabletPage {
    int id;
    void (*lay_out)(TabletFace& face);
    void (*commit)(int field, std::string_view text) = nullptr;  // of a page with entry fields
};
constexpr TabletPage kPages[] = {
    {kTabletMainMenu, MainMenuPage},
    {kTabletTerminalCharts, TerminalChartsPage},
    {kTabletTakeoff, TakeoffPage, CommitTakeoffField},
    {kTabletLanding, LandingPage, CommitLandingField},
    {kTabletAirportSearch, AirportSearchPage, CommitSearchField},
    {kTabletSend, SendPage},
    {kTabletRouteEntry, RouteEntryPage},
    {kTabletDispatch, DispatchPage},
};

void TouchField(int field) {
    const bool same = efb.EfbEditField == field;
    CommitEfbScratch();
    efb.EfbEditField = same ? 0 : field;
    efb.EfbOpenList = 0;
}

// A page that isn't there is the menu.
const TabletPage& ShownPage() {
    for (const TabletPage& page : kPages)
        if (page.id == efb.EfbPage) return page;
    return kPages[0];
}

void StepPower(EfbSide& tablet) {
    constexpr int kStartupTicks = 180;
    const int before = tablet.EfbPower;
    tablet.EfbPower = tablet.power_key == 1 && IsAcBusPowered() ? 1 : 0;
    if (tablet.EfbPower == 1 && before == 0)
        tablet.startup_ticks = kStartupTicks;
    else if (tablet.startup_ticks > 0)
        --tablet.startup_ticks;
}

void TakeKey(int side) {
    EfbSide& tablet = EfbOf(side);
    const int key = tablet.pending_key;
    tablet.pending_key = kEfbNoKey;
    if (key == kEfbPower) tablet.power_key = tablet.power_key == 1 ? 0 : 1;
    if (!IsTabletLit(side)) return;
    if (key == kEfbMenu) OpenTabletPage(kTabletMainMenu);
    // On the menu the line keys stand beside its rows.
    if (key < kEfbL1 || key > kEfbR8 || efb.EfbPage != kTabletMainMenu) return;
    constexpr int kInside = 10, kLines = kEfbR1 - kEfbL1;
    PressFace(side, key < kEfbR1 ? kInside : kTabletWidth - kInside,
              kMenuRows[(key - kEfbL1) % kLines] + kInside);
}

}  // namespace

bool IsTabletLit(int side) {
    return EfbOf(side).EfbPower == 1 && EfbOf(side).startup_ticks == 0;
}

TabletFace FaceOf(int side) {
    constexpr std::size_t kMostItems = 100, kMostTexts = 60;
    TabletFace face{side, {}, {}};
    face.items.reserve(kMostItems);
    face.texts.reserve(kMostTexts);
    ShownPage().lay_out(face);
    AddKeyboard(face);
    AddOpenList(face);
    return face;
}

void DrawEfb(Graphics& graphics, int side) {
    DrawFace(graphics, FaceOf(side));
}

void CommitEfbScratch() {
    if (efb.EfbScratch.empty()) return;
    const TabletPage& page = ShownPage();
    if (efb.EfbEditField != 0 && page.commit != nullptr) page.commit(efb.EfbEditField, efb.EfbScratch);
    efb.EfbScratch.clear();
}

void CloseEditedField() {
    CommitEfbScratch();
    efb.EfbEditField = 0;
}

void PressFace(int side, int x, int y) {
    const TabletFace face = FaceOf(side);
    const TabletItem* item = face.At(x, y);
    if (item == nullptr || !item->IsTouchable()) return;
    if (item->field != 0) return TouchField(item->field);
    if (!item->goes_on) CloseEditedField();
    item->action(side, item->number);
}

void StepTablets() {
    for (const int side : {kCaptain, kFirstOfficer}) {
        EfbSide& tablet = EfbOf(side);
        TakeKey(side);
        StepPower(tablet);
        if (tablet.touch_ticks > 0) --tablet.touch_ticks;
    }
}
