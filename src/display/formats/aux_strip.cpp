#include "display/formats/aux_strip.h"

#include <cstdio>
#include <string>

#include "paint/painter.h"
#include "state/identity.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kWidth = 182, kBoxHeight = 100, kUpperSeparator = 75;
constexpr int kRightHalfAt = 382;
constexpr float kLabelSize = 9, kValueSize = 11;
constexpr char kValueFamily[] = "Courier New";
constexpr char kNoValue[] = "----------";

}  // namespace

void DrawAuxStrip(Graphics& graphics, const ContentPlace& place) {
    const TransformBlock block(graphics);
    const bool right = place.half == 2;
    if (right) GdipTranslateWorldTransform(graphics, kRightHalfAt, 0);
    FilledBox(graphics, 0, 0, kWidth, kBoxHeight, kDarkFill);
    for (const int y : {kUpperSeparator, kBoxHeight}) Line(graphics, 0, y, kWidth, y, kGreyPen);

    const int labels = right ? 70 : 5, values = right ? 110 : 45;
    const auto field = [&](int y, const char* label, const std::string& value) {
        Text(graphics, labels, y, kLabelSize, kCyan, label);
        if (!value.empty()) TextIn(graphics, kValueFamily, values, y, kValueSize, kWhite, value);
    };
    constexpr int kFlightY = 5;
    field(kFlightY, "FLT #", plan.fms_fltno);
    if (plan.fms_fltno.empty())
        TextIn(graphics, kValueFamily, values, kFlightY, kValueSize, kGreyPen, kNoValue);
    field(17, "MIC", "");
    char transponder[16];
    std::snprintf(transponder, sizeof transponder, "%04d", sim.transponder_code);
    field(29, "XPDR", transponder);
    field(41, "SELCAL", identity.selcal);
}
