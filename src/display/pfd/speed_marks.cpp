#include "display/pfd/speed_marks.h"

#include <cmath>
#include <cstdlib>

#include "base/text.h"
#include "display/pfd/speed_tape.h"
#include "state/flight_log.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/weights.h"

namespace {

constexpr double kRotationDone = 30;  // ft radio altitude, up to which the take-off roll counts
constexpr int kBeside = 47;           // x of labels from the tape's left
constexpr float kMarkSize = 9;
constexpr int kShortTick = 36, kLongTick = 31;

void MarkLabel(const PfdView& view, double speed, std::string_view text) {
    TextFrom(view.graphics, view.left + kBeside, (ShownSpeed() - speed) * kUnitsPerKnot, kMarkSize, kGreen,
             text);
}

void Mark(const PfdView& view, double speed, std::string_view text, int tick_to = kShortTick) {
    const double y = (ShownSpeed() - speed) * kUnitsPerKnot;
    if (!(std::fabs(y) <= kTapeReach + kMarkSize)) return;
    GdipDrawLine(view.graphics, PenOf(kGreen), view.left + 41, y, view.left + tick_to, y);
    MarkLabel(view, speed, text);
}

void DrawTakeoffSpeeds(const PfdView& view) {
    const TakeoffApproachState& speeds = takeoff_approach;
    const bool rolling = sim.radio_alt_ft < kRotationDone;
    if (speeds.vr < 1) {
        if (!rolling) return;
        FilledBox(view.graphics, view.left + 43, -59, 13, 45, kBlack);
        StackedText(view.graphics, view.left + 49.5, -52.5, 8, kAmber, {"NO", "V", "S", "P", "D"});
        return;
    }
    constexpr int kNoFlight = 999, kAirborne = 5, kTooClose = 4;
    const int v1 = speeds.v1 == 0 ? speeds.vr : speeds.v1;
    const bool before_flight = flight_log.fplog_mode == kNoFlight || flight_log.fplog_mode < kAirborne;
    const bool close = std::abs(speeds.vr - v1) < kTooClose || std::abs(speeds.vr - speeds.v2) < kTooClose;
    if (rolling && before_flight && close) MarkLabel(view, speeds.vr, "R");
    if (rolling && before_flight && !close) {
        Mark(view, v1, "V1", kLongTick);
        Mark(view, speeds.vr, "VR", kLongTick);
    }
    if (instruments.vspeed_bugs_removed == 0 && speeds.v2 > 0) Mark(view, speeds.v2, "V2");
}

struct FlapMark {
    std::string_view label;
    int FlapSpeedRow::*speed;
    int climb_above;     // shown in climb with more flaps than that; 99 = never
    int approach_below;  // in approach with less
};
constexpr int kAlways = -1, kNever = 99;
constexpr FlapMark kFlapMarks[] = {
    {"UP", &FlapSpeedRow::up, kAlways, kNever}, {"1", &FlapSpeedRow::flaps1, 0, 5},
    {"5", &FlapSpeedRow::flaps5, 4, 15},        {"15", &FlapSpeedRow::flaps15, 14, 20},
    {"20", &FlapSpeedRow::flaps20, kNever, 25}, {"25", &FlapSpeedRow::flaps25, kNever, 25},
    {"30", &FlapSpeedRow::flaps30, kNever, 30},
};

void DrawFlapSpeeds(const PfdView& view) {
    constexpr double kSlowest = 30, kHighest = 20000;
    if (!(sim.ias_kt > kSlowest && sim.ind_alt_ft < kHighest)) return;
    const auto row_index = static_cast<std::size_t>(weights.flap_speed_row);
    if (row_index < 1 || row_index >= weights.flap_speeds.size()) return;
    const FlapSpeedRow& row = weights.flap_speeds[row_index];
    const int flaps = instruments.flap_detent;
    const bool approach = instruments.flap_bug_phase != kClimbBugs;
    for (const FlapMark& mark : kFlapMarks)
        if (approach ? flaps < mark.approach_below : flaps > mark.climb_above)
            Mark(view, row.*mark.speed, mark.label);
}

void DrawApproachSpeed(const PfdView& view) {
    constexpr double kLowest = 300;
    const double vref = takeoff_approach.vref;
    if (!(vref > 0 && sim.radio_alt_ft > kLowest)) return;
    Mark(view, vref, "REF");
    TextFrom(view.graphics, view.left + kBeside, 93, kMarkSize, kGreen,
             Format("%d/%.0f", takeoff_approach.ldg_flaps, Bounded(vref, 0, 999)));
}

}  // namespace

void DrawSpeedMarks(const PfdView& view) {
    if (!IsPfdLit()) return;
    const ClipBlock clip(view.graphics, view.left + kTapeLeft, -100, kTapeWidth, 200);
    DrawTakeoffSpeeds(view);
    DrawFlapSpeeds(view);
    DrawApproachSpeed(view);
}
