#pragma once

/// Take-off speeds (kt, whole) from formulas that were fitted to this aircraft. Weight in kilograms, flap
/// setting 5 to 20 (another counts as 5), OAT in degrees Celsius, pressure altitude in feet; `reduction` is
/// the fixed derate 0, 1 or 2.

/// `wet` is 0 dry, 1 wet, 2 wet and slippery. The runway's heading and the wind's direction have the same
/// reference. Never below the minimum control speed on the ground.
int ComputeV1(double kg, int wet, int reduction, int flaps, double wind_dir, double wind_speed,
              double runway_heading, double oat, double pressure_alt);
int ComputeVR(double kg, int reduction, int flaps, double oat, double pressure_alt);
int ComputeV2(double kg, int reduction, int flaps, double oat, double pressure_alt);

/// Wind along a runway, knots: above 0 from behind.
double TailWind(double wind_dir, double wind_speed, double runway_heading);
