#include "display/system_strip.h"

#include "state/displays.h"

namespace {

struct Strip {
    int page;
    int left, right, top, bottom;  // the outermost places that answer
};
constexpr int kUpperBottom = 22, kStatBottom = 24, kLowerTop = 30, kLowerBottom = 48;
constexpr Strip kStrips[] = {
    {kPageStat, 2, 41, 0, kStatBottom},
    {kPageElec, 50, 91, 0, kUpperBottom},
    {kPageHyd, 97, 137, 0, kUpperBottom},
    {kPageFuel, 143, 184, 0, kUpperBottom},
    {kPageAir, 191, 231, 0, kUpperBottom},
    {kPageDoor, 236, 278, 0, kUpperBottom},
    {kPageGear, 2, 51, kLowerTop, kLowerBottom},
    {kPageFctl, 58, 108, kLowerTop, kLowerBottom},
    {kPageEfisDsp, 114, 164, kLowerTop, kLowerBottom},
    {kPageMaint, 171, 221, kLowerTop, kLowerBottom},
    {kPageCb, 227, 277, kLowerTop, kLowerBottom},
};
constexpr Strip kWayBack{kPageStat, 2, 55, 0, kStatBottom};

bool Answers(const Strip& strip, int x, int y) {
    return x >= strip.left && x <= strip.right && y >= strip.top && y <= strip.bottom;
}

}  // namespace

void OnSystemStripClick(int x, int y, int unit, int half) {
    int& page = SystemPageOf(unit, half);
    if (page == kPageCb || page == kPageMaint) {
        if (Answers(kWayBack, x, y)) page = kWayBack.page;
        return;
    }
    for (const Strip& strip : kStrips)
        if (Answers(strip, x, y)) {
            page = strip.page;
            return;
        }
}
