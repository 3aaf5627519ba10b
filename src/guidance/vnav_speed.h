#pragma once

// The speed that VNAV aims at.

/// Which rule set the target, of vnav_lset_code.
enum class SpeedRule {
    kTopOfDescent = 1,         // 25 nm or more from the fix
    kDescentTransition = 2,    // near it, with the speed bug above it
    kDescentRestriction = 3,   //
    kClimbLimitEndsAtLeg = 4,  // with a speed constraint ahead
    kClimbLimitEnds = 5,
    kLevelOffAboveTransition = 6,  // at a leg with a speed constraint
    kLevelOffBelowTransition = 7,
    kDescentBelowTransition = 8,
    kDescentMach = 9,
    kDescentIas = 10,
    kClimbLimitBeforeLeg = 11,
    kClimbToLeg = 12,
    kClimbLimitBeforeBottom = 13,
    kClimbToBottom = 14,
    kClimbRestriction = 15,
    kClimbTransition = 16,
    kClimbMach = 17,
    kClimbIas = 18,
    kCruiseToBottom = 19,
    kEarlyDescent = 20,
    kCruiseMach = 21,
    kCruiseIas = 22
};

/// Sets an IAS target (kt) and the rule that it comes from.
void AimAtSpeed(SpeedRule rule, double ias);

/// Whether the target in force is a Mach.
bool IsTargetMach();

/// Each pass: the limits on the way down and their end on the way up.
void LimitSpeedOnTheWay();

/// After each sequencing and each pass: speed mode, level-off distance, "DRAG REQUIRED", and the target of
/// the flight phase. The target only with VNAV engaged and an active plan.
void VnavSpeedStep();
