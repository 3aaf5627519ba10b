#pragma once

#include <array>
#include <bitset>

#include "host/aircraft/air.h"
#include "host/aircraft/airframe.h"
#include "host/aircraft/brakes.h"
#include "host/aircraft/cabin.h"
#include "host/aircraft/engines.h"
#include "host/aircraft/failures.h"
#include "host/aircraft/fire_bottles.h"
#include "host/aircraft/fuel_feed.h"
#include "host/aircraft/sphere.h"
#include "host/aircraft/switches.h"

// The stand-in aircraft: a point mass that banks, climbs and turns with believable lags, burns fuel and knows
// its drag. It is flown by FlightControls alone and knows nothing of tokens; aircraft/tokens.h tells the
// simulator what it does.

namespace host {

/// What pilot or autopilot ask of the aircraft.
struct FlightControls {
    double bank = 0;  // degrees, right wing down positive
    double path = 0;  // degrees, flight path above the horizon
    // Left, right: 0 idle to 1 full; below 0 reverse, down to kFullReverse.
    std::array<double, 2> thrust_levers{};
    double flaps = 0;             // degrees of the trailing edge
    double gear = 0;              // 1 down
    double speedbrake = 0;        // 0 to 1
    double wheel_brakes = 0;      // 0 to 1
    int autobrake = 0;            // an AutobrakeSetting
    bool armed_spoilers = false;  // come out by themselves on the ground
    double steering = 0;          // degrees a second on the ground, right positive
};

struct Aircraft {
    // A unit vector to the place on the sphere and one along the nose, so that poles are places like others.
    Vector3 place = {1, 0, 0};
    Vector3 nose = {0, 1, 0};
    double altitude = 0;   // ft above the sea, of the wheels
    double tas = 0;        // kt
    double path = 0;       // degrees, climb positive
    double bank = 0;       // degrees, right wing down positive
    double bank_rate = 0;  // degrees a second
    double pitch = 0;      // degrees, nose up positive
    bool on_ground = true;
    double ground_elevation = 0;      // ft, given by who knows the terrain
    double flaps = 0;                 // degrees
    bool load_relief = false;         // they stay in while it is too fast for them
    double gear = 1, speedbrake = 0;  // positions, 0 to 1
    AutomaticBrakes brakes;
    std::array<WheelBrake, 8> wheel_brakes;
    bool chocks = false;
    double trim = 4.5;  // units of the stabiliser, more is nose up
    std::array<Engine, 2> engines;
    std::array<double, 3> fuel_lb = {30000, 30000, 40000};
    std::array<double, 5> payload_lb = {10000, 10000, 10000, 10000, 15000};  // by station
    Switches switches;
    Cabin cabin;
    double landing_elevation = 0;  // ft, for the cabin
    bool door_open = false;
    std::bitset<kFailureCount> fails;
    FireBottles bottles;
    double body_acceleration = 0;  // ft/s^2 along the nose
    Airframe airframe = AirframeOf("");
    AirMass air;
    double wind_kt = 0;  // as it blows where the aircraft is: less than the air's own near the ground
    FlightControls controls;
    // derived at each step
    double ground_speed = 0;    // kt
    double track = 0;           // degrees true
    double vertical_speed = 0;  // fpm
    double mach = 0, ias = 0;
};

/// Puts the aircraft at a place with a true heading, trimmed: on the ground at rest with `ias` 0, in the air
/// level with engines to hold the speed.
void PlaceAircraftAt(Aircraft& aircraft, double lat, double lon, double altitude, double heading, double ias,
                     double ground_elevation);

/// Flies on by `dt` seconds.
void StepAircraft(Aircraft& aircraft, double dt);

/// Some generator gives alternating current, of an engine, the APU or on the ground.
bool HasAlternatingCurrent(const Aircraft& aircraft);

double Latitude(const Aircraft& aircraft);
double Longitude(const Aircraft& aircraft);  // -180 to 180
double TrueHeading(const Aircraft& aircraft);
double FuelOnBoard(const Aircraft& aircraft);  // lb
double GrossWeight(const Aircraft& aircraft);  // lb
/// Speed (kt IAS) at which the wing stops carrying the weight, flaps as they stand or at an angle (degrees).
double StallSpeed(const Aircraft& aircraft);
double StallSpeedAt(const Aircraft& aircraft, double flaps);
/// Degrees by which the nose may still rise against the path before the wing stalls.
double StallMargin(const Aircraft& aircraft);

}  // namespace host
