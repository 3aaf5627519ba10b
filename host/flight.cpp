#include "host/flight.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "host/aircraft/model_systems.h"
#include "host/aircraft/tokens.h"
#include "host/world/receivers.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {

Flight flight;

namespace {

constexpr double kTick = 1 / 18.0;
constexpr int kTokenBaro = 75, kTokenMasterBattery = 364, kTokenParkingBrake = 323, kTokenSpoilerHandle = 325,
              kTokenFlapHandle = 328;
constexpr double kBrakeSet = 32767;
constexpr double kTransitionAltitude = 18000;

double GroundFeet(double lat, double lon) {
    return GroundElevationMetres(lat, lon) / kMetresPerFoot;
}

void ApplyOutsideTemperature() {
    Aircraft& aircraft = flight.aircraft;
    aircraft.air.isa_deviation = 0;
    if (!flight.outside_c) return;
    const double altitude = IndicatedAltitude(aircraft.altitude, kStandardHpa, aircraft.air);
    aircraft.air.isa_deviation = *flight.outside_c + kZeroCelsius - Temperature(altitude, aircraft.air);
}

// The mode control panel's windows open at what the aircraft does.
void SetPanelWindows(const Placement& placement) {
    constexpr double kStandingSpeed = 200;
    SetToken(116, placement.ias > 0 ? std::round(placement.ias) : kStandingSpeed);
    SetToken(107, std::round(TokenOf(81)));
    SetToken(120, 0);
    SetCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)", std::round(placement.alt_ft / 100) * 100);
}

void FollowTerrain() {
    Aircraft& aircraft = flight.aircraft;
    const double height = aircraft.altitude - aircraft.ground_elevation;
    const int every = height > 5000 ? 18 : height > 300 ? 6 : 1;  // ticks
    if (world.ticks % every != 0) return;
    aircraft.ground_elevation = GroundFeet(Latitude(aircraft), Longitude(aircraft));
}

// A stick that is let go holds the path, wings level. On the wheels it only lifts the nose; in the air it
// never asks for more than the aircraft can follow soon, so that nothing winds up.
void FollowStick(const Stick& stick, Aircraft& aircraft) {
    constexpr double kPathRate = 2, kMostBank = 30, kSteeringRate = 4;           // degrees a second, degrees
    constexpr double kMostAhead = 5, kLiftOffPath = 8, kPerKnot = 1.2;           // degrees; degrees a second
    constexpr double kTrimPath = 0.1, kTrimUnits = 0.1, kLeast = 0, kMost = 15;  // degrees, units
    FlightControls& controls = aircraft.controls;
    const double most = std::min(kSteeringRate, aircraft.ground_speed * kPerKnot);
    controls.bank = stick.roll * kMostBank;
    controls.steering = stick.pedals * most;
    if (aircraft.on_ground) {
        controls.path = stick.pitch * kLiftOffPath;
        aircraft.trim = std::clamp(aircraft.trim + stick.trim_clicks * kTrimUnits, kLeast, kMost);
        return;
    }
    controls.path += stick.pitch * kPathRate * kTick + stick.trim_clicks * kTrimPath;
    controls.path = std::clamp(controls.path, aircraft.path - kMostAhead, aircraft.path + kMostAhead);
}

}  // namespace

Placement DemonstrationStand() {
    Placement stand{47.4439, -122.3016, 0, 360};
    stand.alt_ft = GroundFeet(stand.lat, stand.lon);
    return stand;
}

void PlaceAircraft(const Placement& placement) {
    Aircraft& aircraft = flight.aircraft;
    aircraft.airframe = flight.airframe;
    aircraft.altitude = placement.alt_ft;
    ApplyOutsideTemperature();
    PlaceAircraftAt(aircraft, placement.lat, placement.lon, placement.alt_ft, placement.heading,
                    placement.ias, GroundFeet(placement.lat, placement.lon));
    flight.autoflight.smooth_ias = 0;
    SetToken(kTokenBaro, placement.alt_ft < kTransitionAltitude ? aircraft.air.qnh : kStandardHpa);
    FillTokens(aircraft);
    SetPanelWindows(placement);
    SetToken(kTokenSpoilerHandle, 0);
    SetToken(kTokenFlapHandle, 0);
    SetToken(331, aircraft.controls.gear);
}

void ShutDownAircraft() {
    for (Engine& engine : flight.aircraft.engines) engine = Engine{.running = false, .fuel_on = false};
    flight.aircraft.controls.thrust_levers = {};
    SetToken(kTokenMasterBattery, 0);
    SetToken(kTokenParkingBrake, kBrakeSet);
    FillTokens(flight.aircraft);
}

void LoadFuel(double pounds) {
    for (const FuelTank tank : {kLeftTank, kRightTank, kCentreTank}) {
        const double share = tank == kLeftTank ? pounds / 2 : pounds;
        const double loaded = std::clamp(share, 0.0, kTankGallons[tank] * kFuelLbPerGallon);
        flight.aircraft.fuel_lb[tank] = loaded;
        pounds -= loaded;
    }
    FillTokens(flight.aircraft);
}

void SetWind(double from_deg, double speed_kt) {
    flight.aircraft.air.wind_from = from_deg;
    flight.aircraft.air.wind_kt = flight.aircraft.wind_kt = speed_kt;
    FillTokens(flight.aircraft);
}

void SetOutsideTemperature(double celsius) {
    flight.outside_c = celsius;
    ApplyOutsideTemperature();
    FillTokens(flight.aircraft);
}

void SetQnh(double hpa) {
    flight.aircraft.air.qnh = hpa;
    FillTokens(flight.aircraft);
}

void SetFailure(const FailureRow& row, bool fails) {
    flight.aircraft.fails[row.failure] = fails;
    if (fails && !row.trips.empty()) SetNamedValue(row.trips, 0);
    FillTokens(flight.aircraft);
    FillModelSystems(flight.aircraft);
}

bool SetGround(const GroundRow& row, bool on) {
    return SetGroundService(flight.aircraft, row, on);
}

void FollowCommands(const AutoflightCommands& commands, FlightControls& controls) {
    controls.bank = commands.flies ? commands.bank : 0;
    if (commands.flies) controls.path = commands.path;
    controls.steering = commands.flies ? commands.steering : 0;
    if (commands.moves_levers) controls.thrust_levers.fill(commands.thrust_lever);
}

void StepFlight(bool moves) {
    Aircraft& aircraft = flight.aircraft;
    const bool written = TakeDataWrites(aircraft);
    if (!moves) {
        if (written) FillTokens(aircraft);
        return;
    }
    TakeControlsFromTokens(aircraft);
    FollowTerrain();
    AutoflightCommands commands = StepAutoflight(flight.autoflight, kTick);
    if (world.stick.in_hand) commands.flies = flight.autoflight.engaged;
    FollowCommands(commands, aircraft.controls);
    if (!commands.flies) FollowStick(world.stick, aircraft);
    world.stick.trim_clicks = 0;
    aircraft.controls.wheel_brakes = std::max(aircraft.controls.wheel_brakes, world.stick.brakes);
    StepAircraft(aircraft, kTick);
    FillTokens(aircraft);
    StepReceivers(
        {Latitude(aircraft), Longitude(aircraft), aircraft.altitude, TokenOf(82), TrueHeading(aircraft)});
}

bool AircraftValue(const std::string& name, double& value) {
    struct Row {
        std::string_view name;
        double (*read)(const Aircraft& aircraft);
    };
    static constexpr Row kRows[] = {
        {"lat", Latitude},
        {"lon", Longitude},
        {"alt", [](const Aircraft& aircraft) { return aircraft.altitude; }},
        {"hdg", TrueHeading},
        {"ias", [](const Aircraft& aircraft) { return aircraft.ias; }},
        {"gs", [](const Aircraft& aircraft) { return aircraft.ground_speed; }},
        {"vs", [](const Aircraft& aircraft) { return aircraft.vertical_speed; }},
        {"bank", [](const Aircraft& aircraft) { return aircraft.bank; }},
        {"pitch", [](const Aircraft& aircraft) { return aircraft.pitch; }},
        {"fuel", FuelOnBoard},
        {"weight", GrossWeight},
    };
    for (const Row& row : kRows) {
        if (row.name != name) continue;
        value = row.read(flight.aircraft);
        return true;
    }
    return false;
}

}  // namespace host
