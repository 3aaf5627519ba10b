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

constexpr int kBeside = 47;  // x of labels from the tape's left
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
    constexpr int kNoFlight = 999, kAirborne = 5;
    const int v1 = ShownV1();
    const bool before_flight = flight_log.fplog_mode == kNoFlight || flight_log.fplog_mode < kAirborne;
    const bool close = AreTakeoffSpeedsClose();
    if (rolling && before_flight && close) MarkLabel(view, speeds.vr, "R");
    if (rolling && before_flight && !close) {
        Mark(view, v1, "V1", kLongTick);
        Mark(view, speeds.vr, "VR", kLongTick);
    }
    if (instruments.vspeed_bugs_removed == 0 && speeds.v2 > 0) Mark(view, speeds.v2, "V2");
}

constexpr FlapMark kFlapMarks[] = {
    {"UP", &FlapSpeedRow::up, kAlwaysMarked, kAlwaysMarkedBelow},
    {"1", &FlapSpeedRow::flaps1, 0, 5},
    {"5", &FlapSpeedRow::flaps5, 4, 15},
    {"15", &FlapSpeedRow::flaps15, 14, 20},
    {"20", &FlapSpeedRow::flaps20, kNeverMarked, 25},
    {"25", &FlapSpeedRow::flaps25, kNeverMarked, 25},
    {"30", &FlapSpeedRow::flaps30, kNeverMarked, 30},
};

void DrawFlapSpeeds(const PfdView& view) {
    const FlapSpeedRow* row = FlapSpeedsShown();
    if (row == nullptr) return;
    for (const FlapMark& mark : kFlapMarks)
        if (IsMarked(mark)) Mark(view, row->*mark.speed, mark.label);
}

void DrawApproachSpeed(const PfdView& view) {
    if (!IsReferenceSpeedShown()) return;
    Mark(view, takeoff_approach.vref, "REF");
    TextFrom(view.graphics, view.left + kBeside, 93, kMarkSize, kGreen, ReferenceSpeedText());
}

}  // namespace

const FlapSpeedRow* FlapSpeedsShown() {
    constexpr double kSlowest = 30, kHighest = 20000;
    if (!(sim.ias_kt > kSlowest && sim.ind_alt_ft < kHighest)) return nullptr;
    const auto row = static_cast<std::size_t>(weights.flap_speed_row);
    return row < 1 || row >= weights.flap_speeds.size() ? nullptr : &weights.flap_speeds[row];
}

bool IsReferenceSpeedShown() {
    constexpr double kLowest = 300;
    return takeoff_approach.vref > 0 && sim.radio_alt_ft > kLowest;
}

std::string ReferenceSpeedText() {
    return Format("%d/%.0f", takeoff_approach.ldg_flaps, Bounded(takeoff_approach.vref, 0, 999));
}

bool IsMarked(const FlapMark& mark) {
    const int flaps = instruments.flap_detent;
    return instruments.flap_bug_phase == kClimbBugs ? flaps > mark.climb_above : flaps < mark.approach_below;
}

int ShownV1() {
    return takeoff_approach.v1 == 0 ? takeoff_approach.vr : takeoff_approach.v1;
}

bool AreTakeoffSpeedsClose() {
    constexpr int kTooClose = 4;
    const int vr = takeoff_approach.vr;
    return std::abs(vr - ShownV1()) < kTooClose || std::abs(vr - takeoff_approach.v2) < kTooClose;
}

void DrawSpeedMarks(const PfdView& view) {
    if (!IsPfdLit()) return;
    const ClipBlock clip(view.graphics, view.left + kTapeLeft, -100, kTapeWidth, 200);
    DrawTakeoffSpeeds(view);
    DrawFlapSpeeds(view);
    DrawApproachSpeed(view);
}
