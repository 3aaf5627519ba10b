#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Takes the pitch requests of the panel and captures the selected altitude.
void UpdateVerticalMode(AutoflightLogic& logic, const FlightValues& now);

/// The flight path (degrees, up positive) that the vertical mode wants.
double VerticalPath(AutoflightLogic& logic, const FlightValues& now, double dt);

/// The altitude of the panel's window, ft.
double SelectedAltitude();

/// Reports that the aircraft has left the selected altitude, once it has been there, by 200 to 900 ft. Not on
/// the way down to a runway.
void ReportAltitudeAlert(AutoflightLogic& logic, const FlightValues& now);

/// The speed that pitch or thrust is to hold, kt IAS at this height: the profile's in VNAV, else the panel's
/// window, a Mach window included; within what the aircraft can fly.
double TargetSpeed(const AutoflightLogic& logic, const FlightValues& now);
/// The target stands as a Mach.
bool IsMachTarget(const AutoflightLogic& logic);

// Words that the vertical modes share.
double IasOfMach(double mach, const FlightValues& now);

/// Keeps the Mach number of the speed window (token 118) while the window shows one: the one that its knots
/// stood for when it was changed over or turned last. Changed back, its knots are those of that Mach number.
void FollowSpeedWindow(AutoflightLogic& logic, const FlightValues& now);
double PathOfVerticalSpeed(double vertical_speed, const FlightValues& now);
/// The path that closes in on a level and stays there.
double PathToLevel(double altitude, const FlightValues& now);
/// How far from a level, ft, a climb or descent must begin to end.
double CaptureLead(const FlightValues& now);
/// Speed by pitch: the path (degrees) bends until the speed changes as the error wants it to.
double PathForSpeed(const AutoflightLogic& logic, const FlightValues& now, double speed, double dt);

}  // namespace host
