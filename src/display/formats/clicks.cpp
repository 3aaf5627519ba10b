#include "display/formats/clicks.h"

#include "display/formats/format_table.h"
#include "display/routing/modes.h"
#include "state/displays.h"

namespace {

constexpr int kRightCanvas = 283;  // 282 is the left half's last column
constexpr int kWideNdShift = 141;  // the wide ND's keys stand around the middle of the unit

}  // namespace

void OnDisplayUnitClick(int x, int y, int unit) {
    if (unit < 1 || unit > 5) return;
    const int mode = DisplayModeOf(unit);
    const auto contents = ContentsOf(mode);
    if (!contents) return;
    const int half = x < kRightCanvas || mode == kModeWideNd ? 1 : 2;
    const Content content = half == 1 ? contents->left : contents->right;
    const DisplayFormat* format = FindFormat(content);
    if (format == nullptr || format->touch == nullptr) return;
    const int origin = mode == kModeWideNd ? kWideNdShift : half == 1 ? 0 : format->right_at;
    format->touch({unit, half, x - origin, y, PlaceOf(content, mode, unit, half).side});
}
