#include "display/clicks.h"

#include "display/modes.h"
#include "display/system_strip.h"
#include "state/displays.h"

namespace {

constexpr int kWidth = 564, kHeight = 424, kHalfWidth = 282;

struct TouchRow {
    Content content;
    void (*click)(int x, int y, int unit, int half);  // in the half's own frame
};
constexpr TouchRow kTouched[] = {
    {Content::kSys, OnSystemStripClick},
};

}  // namespace

void OnDisplayUnitClick(int x, int y, int unit) {
    if (unit < 1 || unit > 5 || x < 0 || x >= kWidth || y < 0 || y >= kHeight) return;
    const auto contents = ContentsOf(DisplayModeOf(unit));
    if (!contents) return;
    const int half = x < kHalfWidth ? 1 : 2;
    const Content content = half == 1 ? contents->left : contents->right;
    for (const TouchRow& row : kTouched)
        if (row.content == content) row.click(half == 1 ? x : x - kHalfWidth, y, unit, half);
}
