#include "display/synoptics/cb_page.h"

#include <string>

#include "base/text.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"

namespace {

enum View { kFlightDeck, kByState, kSearch, kByAta, kByLocation, kRecent };

struct ViewKey {
    std::string_view text;
    SoftKeyBox box;
};
// In the order of the views. The first row stands beside the key that leads back.
constexpr int kViewWidth = 66, kViewHeight = 24, kUpperY = 30, kLowerY = 58;
constexpr ViewKey kViewKeys[] = {
    {"FLIGHT\nDECK CB", {290, kUpperY, kViewWidth, kViewHeight}},
    {"CB BY\nSTATE", {390, kUpperY, kViewWidth, kViewHeight}},
    {"CB\nSEARCH", {490, kUpperY, kViewWidth, kViewHeight}},
    {"CB BY\nATA", {290, kLowerY, kViewWidth, kViewHeight}},
    {"CB BY\nLOCATION", {390, kLowerY, kViewWidth, kViewHeight}},
    {"RECENT\nUSED CB", {490, kLowerY, kViewWidth, kViewHeight}},
};

struct Breaker {
    std::string_view name, location;
    int ata;  // chapter
    bool (*is_open)();
};
constexpr Breaker kBreakers[] = {
    {"GEN DRIVE L1", "E/E FWD", 24, [] { return cockpit.drive_disc_l1 != 0; }},
    {"GEN DRIVE L2", "E/E FWD", 24, [] { return cockpit.drive_disc_l2 != 0; }},
    {"GEN DRIVE R1", "E/E AFT", 24, [] { return cockpit.drive_disc_r1 != 0; }},
    {"GEN DRIVE R2", "E/E AFT", 24, [] { return cockpit.drive_disc_r2 != 0; }},
    {"MAIN BATTERY", "E/E FWD", 24, [] { return electrical.batt_pwr == 0; }},
    {"CABIN/UTIL", "E/E AFT", 25, [] { return electrical.cab_bus_on == 0; }},
    {"IFE/PASS SEATS", "E/E AFT", 44, [] { return electrical.ife_bus_on == 0; }},
};

// Nothing can be typed into the search, and nothing is pulled by hand: both lists stay empty.
bool IsListed(const Breaker& breaker) {
    switch (displays.cb_view) {
        case kByState:
            return breaker.is_open();
        case kSearch:
        case kRecent:
            return false;
        default:
            return true;
    }
}

std::string LineOf(const Breaker& breaker) {
    const std::string name(breaker.name);
    if (displays.cb_view == kByAta) return Format("%d  %s", breaker.ata, name.c_str());
    if (displays.cb_view == kByLocation) return std::string(breaker.location) + "  " + name;
    return name;
}

void DrawBreaker(const SysPage& page, const Breaker& breaker, int y) {
    TextFrom(page.graphics, 300, y, 10, kWhite, LineOf(breaker));
    if (!breaker.is_open()) return;
    BoxOutline(page.graphics, 500, y - 7, 40, 14, kWhite);
    TextAbout(page.graphics, 520, y, 9, kWhite, "OPEN");
}

}  // namespace

void DrawCbPage(const SysPage& page) {
    constexpr int kHeaderY = 98, kFirstY = 116, kStep = 18;
    for (int view = kFlightDeck; view <= kRecent; ++view)
        DrawSoftKey(page.graphics, kViewKeys[view].box, kViewKeys[view].text,
                    {.active = displays.cb_view == view});
    DrawSysBox(page, 290, 88, 266, 316, FlowState::kDead);
    DrawSysLabel(page, 520, kHeaderY, "OPEN/");
    int y = kFirstY;
    for (const Breaker& breaker : kBreakers) {
        if (!IsListed(breaker)) continue;
        DrawBreaker(page, breaker, y);
        y += kStep;
    }
    if (y == kFirstY) DrawSysValue(page, kPageMiddle, 200, "NO CIRCUIT PROTECTION DEVICE FOUND");
}

void TouchCbPage(const FormatTouch& at) {
    for (int view = kFlightDeck; view <= kRecent; ++view)
        if (IsOnKey(kViewKeys[view].box, at)) displays.cb_view = view;
}
