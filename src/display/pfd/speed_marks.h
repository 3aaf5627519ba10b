#pragma once

#include <string>
#include <string_view>

#include "display/pfd/pfd_view.h"
#include "state/weights.h"

/// The marks beside the speed tape: take-off speeds, flap manoeuvre speeds, the approach speed.
/// A flap setting's mark, and with which settings it is shown.
struct FlapMark {
    std::string_view label;
    int FlapSpeedRow::*speed;
    int climb_above;     // in climb, with more flaps than that
    int approach_below;  // in approach, with less
};
constexpr int kAlwaysMarked = -1, kNeverMarked = 99, kAlwaysMarkedBelow = 99;
/// The manoeuvre speeds of the present weight; null where none are needed, or known.
const FlapSpeedRow* FlapSpeedsShown();
bool IsMarked(const FlapMark& mark);
/// The approach speed is shown, and how it is read out with the flaps it is for.
bool IsReferenceSpeedShown();
std::string ReferenceSpeedText();
/// Which take-off speeds are marked: "R" alone where they stand too close to each other.
bool AreTakeoffSpeedsClose();
int ShownV1();
constexpr double kRotationDone = 30;  // ft radio altitude, up to which the take-off roll counts

void DrawSpeedMarks(const PfdView& view);

constexpr int kClimbBugs = 4, kApproachBugs = 6;  // of flap_bug_phase
