#pragma once

#include <optional>
#include <string_view>

/// A speed and altitude constraint as the crew types it on LEGS: "250/", "/10000A", "250/FL200B", "12000",
/// "240B/200A".
struct ConstraintEntry {
    int speed = 0;             // kt, 100 to 400; 0 = none
    int alt = 0;               // ft, 1 to 50000; 0 = none
    int alt_type = 0;          // a RestrType
    int above = 0, below = 0;  // ft, the window of alt_type 3: at or above, at or below
};

/// Nothing for a text that is no constraint. Altitudes below 1000 are hundreds of feet, unless they begin
/// with "0".
std::optional<ConstraintEntry> ParseConstraint(std::string_view text);

/// Writes an entered constraint into a leg of FlightPlanMod; what wasn't entered stays. A value that the
/// following legs of the descent had in common goes on to them, and an altitude above the cruise altitude
/// becomes the step-to altitude.
void StoreConstraint(int leg, const ConstraintEntry& entry);

/// True when the leg had a constraint, which is then gone.
bool RemoveConstraint(int leg);
