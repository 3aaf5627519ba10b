#include "display/formats/unbuilt.h"

#include "display/routing/modes.h"
#include "paint/painter.h"

namespace {

constexpr double kFrameWidth = 564, kHeight = 424;

// The middle of a half; the PFD beside the auxiliary strip has what that leaves.
double MiddleOf(const ContentPlace& place) {
    constexpr double kStrip = 182;
    if (place.mode == kModeWideNd) return kFrameWidth / 2;
    const double boundary = place.mode == 1 ? kStrip : place.mode == 2 ? kFrameWidth - kStrip : kHalf;
    return place.half == 1 ? boundary / 2 : (boundary + kFrameWidth) / 2;
}

}  // namespace

void DrawName(Graphics& graphics, double middle, double height, const char* name) {
    constexpr float kSize = 20;
    CentredText(graphics, middle, height / 2 - kSize, kSize, kBlueGrey, name);
    CentredText(graphics, middle, height / 2 + kSize / 2, kSize / 2, kBlueGrey, "not there yet");
}

void DrawFormatName(Graphics& graphics, const ContentPlace& place, const char* name) {
    DrawName(graphics, MiddleOf(place), kHeight, name);
}
