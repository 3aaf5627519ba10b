#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/planned_speeds.h"

struct PageCall;

// What the pages of the VNAV group have in common.

/// The speed of a phase by knots and by Mach, and the marks of their selection.
struct SpeedPair {
    double PlannedSpeeds::*ias, PlannedSpeeds::*mach;
    int SpeedSelections::*ias_selected, SpeedSelections::*mach_selected;
};
constexpr SpeedPair kClimbPair = {&PlannedSpeeds::climb_ias, &PlannedSpeeds::climb_mach,
                                  &SpeedSelections::ClimbSelected, &SpeedSelections::climb_mach_manual};
constexpr SpeedPair kCruisePair = {&PlannedSpeeds::cruise_ias, &PlannedSpeeds::cruise_mach,
                                   &SpeedSelections::CruiseSelected, &SpeedSelections::CruiseMachSelected};
constexpr SpeedPair kDescentPair = {&PlannedSpeeds::descent_ias, &PlannedSpeeds::descent_mach,
                                    &SpeedSelections::DescentSelected, &SpeedSelections::descent_mach_manual};

/// Where a typed speed goes: into what EXEC brings, or below state 3 into the plan at once.
PlannedSpeeds& EditedSpeeds();
bool IsSpeedSelected(const SpeedPair& pair);
/// An entry of a speed opens a modification, and is done.
void SpeedsChanged(PageCall& call);

/// "280", "280/.80" or "/.80"; 0 is what wasn't typed.
struct TypedSpeeds {
    double ias = 0, mach = 0;
};
std::optional<TypedSpeeds> ParseSpeeds(std::string_view text, double highest_mach);
/// Stores what has been typed as selected.
void SelectSpeeds(const SpeedPair& pair, const TypedSpeeds& typed);

/// The second line of the group.
void SpeedLine(PageCall& call, const SpeedPair& pair, std::string_view label);

/// "ECON CLB" or "280KT CLB", "ACT" or "MOD" before it, and the counter.
void VnavTitle(PageCall& call, const SpeedPair& pair, std::string_view phase);

/// A speed and the altitude below which it holds, "250/10000"; and DELETE of them.
void EnterSpeedLimit(PageCall& call, int& speed, int& altitude);
void TransitionLine(PageCall& call, int speed, int altitude);
void RestrictionLine(PageCall& call, int speed, int altitude);

/// The next leg ahead in the climb, or in the descent, that one of the RestrCodes constrains; 0 = none.
int NextClimbConstraint(int codes);
int NextDescentConstraint(int codes);
