#pragma once

#include "state/planned_speeds.h"

enum class SpeedsCount { kNow, kWithExec };

/// The planned speeds go back to those that a route begins with: the configuration's (cruise and descent
/// without a setting of their own take the climb's), and Mach .74, .78, .74. Nobody has set them by hand.
/// With a route that is flown meanwhile they are left for EXEC.
void SetDefaultSpeeds(SpeedsCount when);

/// An airspeed that is still 0 takes its default: climb the configuration's, cruise and descent their own,
/// else the climb's.
void FillMissingSpeeds(PlannedSpeeds& speeds);

/// A Mach that is still 0 takes the configuration's, else that of its airspeed at the cruise altitude.
void FillMissingMachs(PlannedSpeeds& speeds, double cruise_alt);
