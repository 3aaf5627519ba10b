#pragma once

#include "state/airports.h"

// Speeds, fuel and altitudes that the plan implies, from the aircraft's built-in tables. Pounds, feet, knots,
// nautical miles, feet per minute.

/// A weight (lb) in the unit of the setting WeightUnit.
double DisplayWeight(double lb);

/// Gross weight (lb): as the performance pages have it, else empty weight, payload and fuel of the aircraft.
double GrossWeight();

/// The destination's selected runway, null when there is none.
const RunwayData* DestinationRunway();

/// Distances along the route from the aircraft to the top of climb, the top of descent and the destination,
/// and the bearing to it.
void ComputeDistances();

/// Sets the speeds of the row of the cost index table, those not set by hand: the set in force with `active`,
/// else the pending one. An index that is no row changes nothing.
void ApplyCostIndexRow(bool active, int index);

/// Economy speeds for the present gross weight: knots, a Mach, knots.
double EconClimbSpeed(int cost_index);
double EconCruiseMach(int cost_index, double altitude);
double EconDescentSpeed(int cost_index);

constexpr int kLongRangeCruise = 99999;  // cost index that stands for long-range cruise

/// Fuel factor of the cost index in force, 0 without one.
double PerfFactor();

/// Altitude limit for the gross weight or another weight (lb), in hundreds of feet.
int MaxAltitude();
int MaxAltitudeFor(double weight);

/// The best altitude for the gross weight, in hundreds of feet; 0 when it is too heavy for any.
int OptimumAltitude();

/// A cruise altitude (ft) for a short route without one, 0 when there is none.
double BestAltitude();

struct ClimbPerformance {
    double rate = 0;       // fpm
    double fuel_flow = 0;  // lb/h
};
/// Nearest row and weight of the climb table; the default climb rate with the setting RocTest off.
ClimbPerformance ClimbRate(double weight, double altitude);

/// Mach of an indicated airspeed at an altitude in the standard atmosphere, as used for planning.
double IasToMach(double ias, double altitude);

/// True airspeed for planning.
double PlanningTas(double ias, double altitude);
