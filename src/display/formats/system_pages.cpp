#include "display/formats/system_pages.h"

#include "base/area.h"
#include "display/formats/unbuilt.h"
#include "state/displays.h"

namespace {

struct SystemPage {
    int page;
    Area strip;
};
constexpr int kCbPage = 2, kMaintPage = 10, kStatPage = 11;
constexpr SystemPage kSystemPages[] = {
    {kStatPage, {2, 41, 0, 24}},   {5, {50, 91, 0, 22}},
    {9, {97, 137, 0, 22}},         {7, {143, 184, 0, 22}},
    {1, {191, 231, 0, 22}},        {3, {236, 278, 0, 22}},
    {8, {2, 51, 30, 48}},          {6, {58, 108, 30, 48}},
    {4, {114, 164, 30, 48}},       {kMaintPage, {171, 221, 30, 48}},
    {kCbPage, {227, 277, 30, 48}},
};
// The pages without a strip of their own but for the way back.
constexpr Area kBackToStat = {2, 55, 0, 24};

}  // namespace

void DrawSystemPage(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "SYS");
}

void TouchSystemPage(const FormatTouch& at) {
    int& page = SystemPageOf(at.unit, at.half);
    if (page == kCbPage || page == kMaintPage) {
        if (kBackToStat.Has(at.x, at.y)) page = kStatPage;
        return;
    }
    for (const SystemPage& row : kSystemPages)
        if (row.strip.Has(at.x, at.y)) page = row.page;
}
