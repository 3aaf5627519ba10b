#pragma once

#include <array>
#include <string>

#include "display/pfd/pfd_view.h"

/// What the deviation scales show.
enum class DeviationSource { kNone, kLandingSystem, kFinalApproach, kRoute };
DeviationSource SourceOfDeviation();

/// What the approach is flown by: identifier and course, distance, kind of source; empty lines stand at the
/// end.
std::array<std::string, 3> ApproachSourceLines();

/// "OM", "MM" or "IM"; empty while no beacon is received.
std::string_view BeaconName();

void DrawApproachSource(const PfdView& view);
void DrawMarkerBeacon(const PfdView& view);
