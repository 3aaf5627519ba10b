#pragma once

// Altitude constraints that the crew takes away while it flies: by the altitude knob the next one
// (`only_next`, which is executed at once on an active route), by the keys CLB DIR and DES DIR all of them.

/// Those between the leg being flown and the top of climb.
void DeleteClimbRestrictions(bool only_next);

/// Those from the leg being flown to the missed approach.
void DeleteDescentRestrictions(bool only_next);
