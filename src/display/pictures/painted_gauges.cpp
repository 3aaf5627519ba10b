#include "display/pictures/painted_gauges.h"

namespace {

constexpr PaintedGauge kPaintedGauges[] = {
    {"DEBUG", 1, Painting::kDebug, 0, ShownIn::kAlways, 564, 424},
    {"DU_CAPT_OUTB_2D", 2, Painting::kDisplayUnit, 1, ShownIn::k2dCockpit, 564, 424},
    {"DU_CAPT_INB_2D", 3, Painting::kDisplayUnit, 2, ShownIn::k2dCockpit, 564, 424},
    {"STBY_PFD", 9, Painting::kStandby, 0, ShownIn::kAlways, 100, 92},
    {"HUD", 10, Painting::kHud, 0, ShownIn::kAlways, 480, 410},
    {"DU_CAPT_OUTB_VC", 12, Painting::kDisplayUnit, 1, ShownIn::kVirtualCockpit, 564, 424},
    {"DU_CAPT_INB_VC", 13, Painting::kDisplayUnit, 2, ShownIn::kVirtualCockpit, 564, 424},
    {"DU_FO_INB_VC", 14, Painting::kDisplayUnit, 3, ShownIn::kVirtualCockpit, 564, 424},
    {"DU_FO_OUTB_VC", 15, Painting::kDisplayUnit, 4, ShownIn::kVirtualCockpit, 564, 424},
    {"DU_LOWER_VC", 16, Painting::kDisplayUnit, 5, ShownIn::kVirtualCockpit, 564, 424},
    {"CAPT_EFB", 17, Painting::kEfb, 1, ShownIn::kAlways, 340, 448},
    {"FO_EFB", 18, Painting::kEfb, 2, ShownIn::kAlways, 340, 448},
    {"DU_CAPT_OUTB_PW", 22, Painting::kDisplayUnit, 1, ShownIn::kAlways, 564, 424},
    {"DU_CAPT_INB_PW", 23, Painting::kDisplayUnit, 2, ShownIn::kAlways, 564, 424},
    {"DU_FO_INB_PW", 24, Painting::kDisplayUnit, 3, ShownIn::kAlways, 564, 424},
    {"DU_FO_OUTB_PW", 25, Painting::kDisplayUnit, 4, ShownIn::kAlways, 564, 424},
    {"DU_LOWER_PW", 26, Painting::kDisplayUnit, 5, ShownIn::kAlways, 564, 424},
    {"CAPT_EFB_PW", 27, Painting::kEfb, 1, ShownIn::kAlways, 340, 448},
};

}  // namespace

std::span<const PaintedGauge> PaintedGauges() {
    return kPaintedGauges;
}

const PaintedGauge* FindPaintedGauge(std::string_view name) {
    for (const PaintedGauge& row : kPaintedGauges)
        if (row.name == name) return &row;
    return nullptr;
}
