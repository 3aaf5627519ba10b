#include "display/formats/system_pages.h"

#include <algorithm>
#include <iterator>

#include "display/synoptics/air_page.h"
#include "display/synoptics/cb_page.h"
#include "display/synoptics/door_page.h"
#include "display/synoptics/efis_dsp_page.h"
#include "display/synoptics/elec_page.h"
#include "display/synoptics/fctl_page.h"
#include "display/synoptics/fuel_page.h"
#include "display/synoptics/gear_page.h"
#include "display/synoptics/hyd_page.h"
#include "display/synoptics/key_strip.h"
#include "display/synoptics/maint_page.h"
#include "display/synoptics/stat_page.h"
#include "state/displays.h"

namespace {

struct SystemPage {
    int page;
    void (*draw)(const SysPage& page);
    void (*touch)(const FormatTouch& at) = nullptr;  // beyond the keys above
};
constexpr SystemPage kSystemPages[] = {
    {kAirPage, DrawAirPage},   {kCbPage, DrawCbPage, TouchCbPage},
    {kDoorPage, DrawDoorPage}, {kEfisDspPage, DrawEfisDspPage, TouchEfisDspPage},
    {kElecPage, DrawElecPage}, {kFctlPage, DrawFctlPage},
    {kFuelPage, DrawFuelPage}, {kGearPage, DrawGearPage},
    {kHydPage, DrawHydPage},   {kMaintPage, DrawMaintPage},
    {kStatPage, DrawStatPage},
};

const SystemPage* FindSystemPage(int page) {
    const auto row = std::ranges::find(kSystemPages, page, &SystemPage::page);
    return row == std::end(kSystemPages) ? nullptr : row;
}

}  // namespace

void DrawSystemPage(Graphics& graphics, const ContentPlace& place) {
    const SystemPage* row = FindSystemPage(place.system_page);
    if (row == nullptr) return;
    DrawSysKeyStrip(graphics, place.half, row->page);
    const TransformBlock block(graphics);
    if (place.half == 1) GdipTranslateWorldTransform(graphics, -kHalf, 0);
    row->draw({graphics, place.side});
}

void TouchSystemPage(const FormatTouch& at) {
    int& page = SystemPageOf(at.unit, at.half);
    const int chosen = PageOfPress(page, at.x, at.y);
    const SystemPage* row = FindSystemPage(page);
    if (chosen == page && row != nullptr && row->touch != nullptr) row->touch(at);
    page = chosen;
}
