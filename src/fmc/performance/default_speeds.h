#pragma once

enum class SpeedsCount { kNow, kWithExec };

/// The planned speeds go back to those that a route begins with: the configuration's (cruise and descent
/// without a setting of their own take the climb's), and Mach .74, .78, .74. Nobody has set them by hand.
/// With a route that is flown meanwhile they are left for EXEC.
void SetDefaultSpeeds(SpeedsCount when);
