#pragma once

/// The EXEC key: makes FlightPlanMod the active route. `fms_fpln_active` is 3 afterwards, `stpos` at least 1.
/// Without a last leg to fly to nothing happens.
void ExecuteRoute();

/// The step-to altitude (ft) for a cruise altitude and a step size: `size` -1 ICAO, -2 RVSM, above 0 that
/// many feet; 0 gives `entered`. What lies above the maximum altitude isn't looked at here; 0 = no step.
double StepToAltitude(double cruise_alt, int size, double entered);
