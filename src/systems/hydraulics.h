#pragma once

// Three hydraulic systems, each the better of two sources; the ram air turbine helps the centre one.

/// One tick of the pumps and of all pressures, which are published.
void StepHydraulics();
