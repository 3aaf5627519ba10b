#pragma once

#include "navdata/geodesy.h"

// The geometry of a flown path: what a turn takes, when the next leg starts, how far the aircraft is off its
// leg. A leg is the great circle between two positions; nothing of the path is stored. Degrees, nm, knots.

/// Radius (nm) of a turn at the present ground speed.
double TurnRadiusForGroundSpeed();
/// Radius (nm) of a turn planned for a speed (kt) at an altitude (ft).
double TurnRadiusForSpeedAndAlt(double speed, double altitude);

constexpr double kTurnOfFarFix = -1;      // the fix is too far for its turn to matter
constexpr double kTurnOfFlyOverFix = -2;  // the fix is overflown before the turn
/// How far (nm) before a fix the turn by `angle` degrees on `radius` must start, at the present ground speed.
/// `angle` may be one of the two codes above. The factors are a fit to how this aircraft turns.
double WaypointChangeDistance(double angle, double radius);

/// The turn at a fix as LNAV begins it.
struct FixTurn {
    int angle = 0;      // whole degrees
    double radius = 0;  // nm
    double begins = 0;  // nm before the fix
};
/// The turn from a course into another at a ground speed (kt).
FixTurn TurnAtFix(double course_in, double course_out, double speed);
/// How far (nm) before a fix that is overflown the next leg begins.
double FlyOverDistance(double speed);

/// How far (nm) along its leg LNAV aims at a true airspeed.
double LnavLookahead(double tas);
/// The bearing that LNAV steers, between that of its aiming point and that of the fix: far from the leg the
/// aiming point may lie beside the aircraft, and then it closes on the leg at a fixed angle.
double LnavBearing(double to_aim, double to_fix);

/// Where an aircraft stands against the great circle between two points.
struct LegPosition {
    double leg_len = 0;         // between the points
    double initial_course = 0;  // degrees true, at the first point
    double course_here = 0;     // degrees true, of the leg abeam the aircraft
    double dist_to_end = 0;     // from the aircraft
    double bearing_to_end = 0;  // degrees true, from the aircraft
    LatLon abeam = {};          // the point on the leg as far from its end as the aircraft is
    double cross_track = 0;     // from the aircraft to that point, at most kMaxCrossTrack
    int cross_track_side = 0;   // kTurnLeft: the aircraft is left of the leg
};
constexpr double kMaxCrossTrack = 125;
/// A leg between equal points has the bearing to its end for its course, and no cross-track.
LegPosition LocateOnLeg(double lat, double lon, double from_lat, double from_lon, double to_lat,
                        double to_lon);

/// Whether a fix lies behind an aircraft that follows `course` (true, of the leg at the fix) with
/// `heading` (true): seen from the aircraft, the fix and a point 22 nm beside it, across the course, lie on
/// opposite sides of the course and both more than 90 degrees from it. The heading must be within 90 degrees
/// of the course, so that an aircraft still turning onto the leg has not passed its end.
bool TargetFixPassed(double lat, double lon, double heading, double course, double fix_lat, double fix_lon);
