#include "host/aircraft/aircraft.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "host/aircraft/angles.h"

namespace host {
namespace {

constexpr double kEarthRadiusNm = 3437.7467707849396;
constexpr double kKgPerLb = 0.45359237;
constexpr double kSeaLevelDensity = 1.225;

// The wing, in SI units.
constexpr double kWingArea = 325;
constexpr double kInducedFactor = 0.030;  // of a span of 60 m
constexpr double kLiftPerDegree = 0.1;
constexpr double kCleanDrag = 0.0180, kGearDrag = 0.018, kBrakeDrag = 0.028;
constexpr double kCleanMaxLift = 1.35;
constexpr double kZeroLiftAngle = -2.5;  // degrees, clean
constexpr double kDragRiseMach = 0.86;
constexpr double kTakeoffTrim = 4.5;

double PressureAltitude(const Aircraft& aircraft) {
    return IndicatedAltitude(aircraft.altitude, kStandardHpa, aircraft.air);
}

double DynamicPressure(const Aircraft& aircraft) {
    const double speed = aircraft.tas / kKnotsPerMps;
    return 0.5 * Density(PressureAltitude(aircraft), aircraft.air) * speed * speed;
}

double Drag(const Aircraft& aircraft, double lift_coefficient) {
    const double over = std::max(aircraft.mach - kDragRiseMach, 0.0);
    const double coefficient = kCleanDrag + EffectOfFlaps(aircraft.flaps).drag + kGearDrag * aircraft.gear +
                               kBrakeDrag * aircraft.speedbrake +
                               kInducedFactor * lift_coefficient * lift_coefficient + 20 * over * over;
    return coefficient * DynamicPressure(aircraft) * kWingArea;
}

double MaxLift(const Aircraft& aircraft) {
    return kCleanMaxLift + EffectOfFlaps(aircraft.flaps).max_lift;
}

double WeightNewton(const Aircraft& aircraft) {
    return GrossWeight(aircraft) * kKgPerLb * kGravity;
}

double ZeroLiftAngle(const Aircraft& aircraft) {
    return kZeroLiftAngle - EffectOfFlaps(aircraft.flaps).incidence;
}

double AngleOfAttack(const Aircraft& aircraft, double load_factor) {
    const double pressure_area = std::max(DynamicPressure(aircraft), 500.0) * kWingArea;
    const double lift = std::min(load_factor * WeightNewton(aircraft) / pressure_area, MaxLift(aircraft));
    return lift / kLiftPerDegree + ZeroLiftAngle(aircraft);
}

// Moves a value towards another at most so far.
double Towards(double value, double wanted, double step) {
    return value + std::clamp(wanted - value, -step, step);
}

void UpdateAirspeeds(Aircraft& aircraft) {
    const double altitude = PressureAltitude(aircraft);
    aircraft.mach = aircraft.tas / SpeedOfSound(altitude, aircraft.air);
    aircraft.ias = CasOfMach(aircraft.mach, altitude);
}

void StepEngines(Aircraft& aircraft, double dt) {
    const double altitude = PressureAltitude(aircraft);
    const double density_ratio = Density(altitude, aircraft.air) / kSeaLevelDensity;
    // A lock keeps the reversers in until the wheels are on the ground.
    for (std::size_t side = 0; side < aircraft.engines.size(); ++side) {
        Engine& engine = aircraft.engines[side];
        const double set = aircraft.controls.thrust_levers[side];
        const double lever = aircraft.on_ground ? set : std::max(set, 0.0);
        engine.failed = aircraft.fails[side == 0 ? kEngineLeft : kEngineRight];
        StepEngine(engine, aircraft.airframe.engine, lever, aircraft.mach, density_ratio, dt);
    }
    StepFuel(aircraft, dt);
}

CabinSetting SettingOfCabin(const Aircraft& aircraft) {
    const Switches& switches = aircraft.switches;
    const bool power = HasAlternatingCurrent(aircraft);
    return {.outside = PressureAltitude(aircraft),
            .landing_elevation = aircraft.landing_elevation,
            .on_ground = aircraft.on_ground,
            .hole = aircraft.door_open || aircraft.fails[kDecompression],
            .packs = power ? switches.packs[0] + switches.packs[1] : 0,
            .valve_auto = {switches.outflow_auto[0], switches.outflow_auto[1]}};
}

// The angle that the handle asks for, or the one below it that the speed still allows.
double AllowedFlaps(Aircraft& aircraft) {
    constexpr double kTakeoffFlaps = 20, kMostFor25 = 210, kMostFor30 = 200, kBack = 5;  // degrees, kt
    const double asked = aircraft.controls.flaps;
    const double most = asked > 25 ? kMostFor30 : kMostFor25;
    aircraft.load_relief =
        asked > kTakeoffFlaps && aircraft.ias > (aircraft.load_relief ? most - kBack : most);
    return aircraft.load_relief ? std::min(asked, kTakeoffFlaps) : asked;
}

// Engines that stand as they run, or don't, with the lever at idle.
void IdleEngines(Aircraft& aircraft) {
    for (Engine& engine : aircraft.engines) {
        engine.n1 = engine.running ? kIdleN1 : 0;
        engine.n2 = engine.running ? kIdleN2 : 0;
    }
    StepEngines(aircraft, 0);
}

// The lever that holds the speed in level flight, by halving.
void TrimThrust(Aircraft& aircraft) {
    const double needed =
        Drag(aircraft, WeightNewton(aircraft) / (std::max(DynamicPressure(aircraft), 500.0) * kWingArea));
    double low = 0, high = 1;
    for (int i = 0; i < 20; ++i) {
        const double lever = (low + high) / 2;
        aircraft.controls.thrust_levers.fill(lever);
        for (Engine& engine : aircraft.engines) {
            engine.n1 = kIdleN1 + (kFullN1 - kIdleN1) * lever;
            engine.n2 = kIdleN2;
        }
        StepEngines(aircraft, 0);
        const double thrust = aircraft.engines[0].thrust_n + aircraft.engines[1].thrust_n;
        (thrust < needed ? low : high) = lever;
    }
}

// The bank follows its command as a roll channel does: a limited rate that itself builds up.
void StepBank(Aircraft& aircraft, double dt) {
    constexpr double kRollTime = 0.9, kRateTime = 0.35, kMostRate = 8;
    const double wanted = aircraft.on_ground ? 0 : std::clamp(aircraft.controls.bank, -60.0, 60.0);
    const double rate = std::clamp((wanted - aircraft.bank) / kRollTime, -kMostRate, kMostRate);
    aircraft.bank_rate += (rate - aircraft.bank_rate) * std::min(dt / kRateTime, 1.0);
    aircraft.bank += aircraft.bank_rate * dt;
}

// The wind's own velocity over the ground, kt.
Vector3 Wind(const Aircraft& aircraft) {
    return DirectionOf(aircraft.air.wind_from + 180, aircraft.place) * aircraft.wind_kt;
}

// A jet stream doesn't reach down to the runway: near the ground the wind is at most what can be landed in.
double WindHere(const Aircraft& aircraft) {
    constexpr double kMostOnGround = 25, kMorePerFoot = 0.02;
    const double height = std::max(aircraft.altitude - aircraft.ground_elevation, 0.0);
    return std::min(aircraft.air.wind_kt, kMostOnGround + kMorePerFoot * height);
}

// Turns the nose and moves over the ground.
void StepPlace(Aircraft& aircraft, double dt) {
    const double turn_rate =  // degrees a second
        aircraft.on_ground
            ? aircraft.controls.steering
            : kGravity * std::tan(aircraft.bank * kRad) / std::max(aircraft.tas / kKnotsPerMps, 30.0) / kRad;
    aircraft.nose = Rotated(aircraft.nose, aircraft.place, -turn_rate * dt * kRad);
    const Vector3 velocity =
        aircraft.on_ground ? aircraft.nose * aircraft.ground_speed
                           : aircraft.nose * (aircraft.tas * std::cos(aircraft.path * kRad)) + Wind(aircraft);
    aircraft.ground_speed = Length(velocity);
    if (aircraft.ground_speed > 0) {
        const Vector3 axis = Normalised(Cross(aircraft.place, velocity));
        const double angle = aircraft.ground_speed / 3600 * dt / kEarthRadiusNm;
        aircraft.place = Normalised(Rotated(aircraft.place, axis, angle));
        aircraft.nose = Rotated(aircraft.nose, axis, angle);
    }
    // Rounding must not let the nose leave the horizon.
    aircraft.nose = Normalised(aircraft.nose + aircraft.place * -Dot(aircraft.nose, aircraft.place));
    aircraft.track = aircraft.ground_speed > 1 ? BearingOf(velocity, aircraft.place) : TrueHeading(aircraft);
}

// The wheels take the aircraft along its nose: the crab that the wind asked for is kicked off.
void TouchDown(Aircraft& aircraft) {
    aircraft.altitude = aircraft.ground_elevation;
    aircraft.on_ground = true;
    aircraft.brakes = {.landed = true};
    aircraft.path = aircraft.bank = aircraft.bank_rate = 0;
    constexpr double kMostCrab = 20;
    const double crab = std::remainder(aircraft.track - TrueHeading(aircraft), 360);
    if (std::fabs(crab) < kMostCrab) aircraft.nose = DirectionOf(aircraft.track, aircraft.place);
}

// Speed and path in the air. The path bends with at most a quarter of the gravity, and not at all upwards
// when the wing has no lift left for it.
void StepFlight(Aircraft& aircraft, double dt) {
    constexpr double kPathTime = 1.6, kMostPull = 0.25;
    const double mass = GrossWeight(aircraft) * kKgPerLb;
    const double speed = std::max(aircraft.tas / kKnotsPerMps, 1.0);
    const double pressure_area = DynamicPressure(aircraft) * kWingArea;
    const double available = pressure_area * MaxLift(aircraft) / (mass * kGravity);  // load factor
    const double in_turn = 1 / std::max(std::cos(aircraft.bank * kRad), 0.3);
    const double wanted = (aircraft.controls.path - aircraft.path) * kRad / kPathTime;
    const double pull = std::clamp(wanted * speed / kGravity, -kMostPull, kMostPull);
    const double load_factor = std::min(in_turn + pull, available);
    aircraft.path += (load_factor - in_turn) * kGravity / speed * dt / kRad;
    aircraft.path = std::clamp(aircraft.path, -30.0, 30.0);
    const double lift_coefficient = pressure_area > 0 ? load_factor * mass * kGravity / pressure_area : 0;
    const double thrust = aircraft.engines[0].thrust_n + aircraft.engines[1].thrust_n;
    const double along = (thrust - Drag(aircraft, lift_coefficient)) / mass;
    const double acceleration = along - kGravity * std::sin(aircraft.path * kRad);
    aircraft.body_acceleration = along / kMetresPerFoot;
    aircraft.tas = std::max(aircraft.tas + acceleration * kKnotsPerMps * dt, 0.0);
    aircraft.vertical_speed = speed * std::sin(aircraft.path * kRad) / kMetresPerFoot * 60;
    aircraft.altitude += aircraft.vertical_speed / 60 * dt;
    const double pitch = aircraft.path + AngleOfAttack(aircraft, load_factor);
    // The stabiliser takes over, slowly, what the elevator holds: the less speed, the more nose up.
    const double trim = std::clamp(2 + 4 * lift_coefficient, 1.0, 8.5);
    aircraft.trim = Towards(aircraft.trim, trim, 0.2 * dt);
    aircraft.pitch += (pitch - aircraft.pitch) * std::min(dt / 0.5, 1.0);
    if (aircraft.altitude <= aircraft.ground_elevation) TouchDown(aircraft);
}

// On the wheels: speed along the nose; a pull above flying speed lifts off.
void StepRoll(Aircraft& aircraft, double dt) {
    constexpr double kRollingFriction = 0.015, kBrakeFriction = 0.40, kMostPitch = 12, kPitchRate = 2.5;
    constexpr double kHeldByChocks = 2e6, kBrakes = 8;  // N, wheels that have one
    aircraft.vertical_speed = 0;
    const double mass = GrossWeight(aircraft) * kKgPerLb;
    const double thrust = aircraft.engines[0].thrust_n + aircraft.engines[1].thrust_n;
    StepAutomaticBrakes(aircraft.brakes, aircraft.controls.autobrake,
                        std::ranges::max(aircraft.controls.thrust_levers), aircraft.ground_speed,
                        -aircraft.body_acceleration, dt);
    const double braked = std::max(aircraft.controls.wheel_brakes, aircraft.brakes.pressure);
    const double friction = kRollingFriction + kBrakeFriction * braked;
    const double held = aircraft.chocks ? kHeldByChocks : friction * mass * kGravity;
    const double braking = kBrakeFriction * braked * mass * kGravity / kBrakes;  // N, of one brake
    for (WheelBrake& brake : aircraft.wheel_brakes)
        HeatBrake(brake, braking * aircraft.ground_speed / kKnotsPerMps * dt);
    double force = thrust - Drag(aircraft, 0.2);
    force = aircraft.ground_speed > 0.1 ? force - held : std::max(force - held, 0.0);
    aircraft.ground_speed = std::max(aircraft.ground_speed + force / mass * kKnotsPerMps * dt, 0.0);
    aircraft.tas = std::max(aircraft.ground_speed - Dot(Wind(aircraft), aircraft.nose), 0.0);
    aircraft.body_acceleration = force / mass / kMetresPerFoot;
    aircraft.altitude = aircraft.ground_elevation;
    aircraft.bank = aircraft.bank_rate = 0;
    const bool rotating = aircraft.controls.path > 0.5 && aircraft.ias > 0.9 * StallSpeed(aircraft);
    aircraft.pitch = Towards(aircraft.pitch, rotating ? kMostPitch : 0, kPitchRate * dt);
    const double pressure_area = DynamicPressure(aircraft) * kWingArea;
    const double lift = (aircraft.pitch - ZeroLiftAngle(aircraft)) * kLiftPerDegree;
    if (rotating && std::min(lift, MaxLift(aircraft)) * pressure_area > mass * kGravity)
        aircraft.on_ground = false;
}

}  // namespace

void PlaceAircraftAt(Aircraft& aircraft, double lat, double lon, double altitude, double heading, double ias,
                     double ground_elevation) {
    aircraft.place = PlaceAt(lat, lon);
    aircraft.nose = DirectionOf(heading, aircraft.place);
    aircraft.ground_elevation = ground_elevation;
    constexpr double kOnGroundBelow = 15;  // ft, as an altitude typed for the ground is rounded
    aircraft.on_ground = altitude <= ground_elevation + kOnGroundBelow;
    aircraft.altitude = aircraft.on_ground ? ground_elevation : altitude;
    aircraft.path = aircraft.bank = aircraft.bank_rate = aircraft.vertical_speed = 0;
    aircraft.wind_kt = aircraft.air.wind_kt;
    const double pressure_altitude = PressureAltitude(aircraft);
    aircraft.tas = MachOfCas(ias, pressure_altitude) * SpeedOfSound(pressure_altitude, aircraft.air);
    aircraft.gear = aircraft.controls.gear = aircraft.on_ground ? 1 : 0;
    aircraft.flaps = aircraft.speedbrake = 0;
    aircraft.brakes = {};
    aircraft.wheel_brakes = {};
    aircraft.chocks = aircraft.load_relief = false;
    aircraft.trim = kTakeoffTrim;
    aircraft.controls.bank = aircraft.controls.path = aircraft.controls.steering = 0;
    aircraft.controls.flaps = aircraft.controls.speedbrake = 0;
    aircraft.controls.thrust_levers = {};
    aircraft.ground_speed =
        aircraft.on_ground ? std::max(aircraft.tas + Dot(Wind(aircraft), aircraft.nose), 0.0) : 0;
    if (aircraft.on_ground && ias == 0) aircraft.ground_speed = 0;
    UpdateAirspeeds(aircraft);
    aircraft.pitch = aircraft.on_ground ? 0 : AngleOfAttack(aircraft, 1);
    if (aircraft.on_ground)
        IdleEngines(aircraft);
    else
        TrimThrust(aircraft);
    StepPlace(aircraft, 0);
    SettleCabin(aircraft.cabin, SettingOfCabin(aircraft));
}

void StepAircraft(Aircraft& aircraft, double dt) {
    constexpr double kFlapTime = 40, kGearTime = 10, kBrakeTime = 1.5;  // s, from end to end
    aircraft.wind_kt = WindHere(aircraft);
    aircraft.flaps = Towards(aircraft.flaps, AllowedFlaps(aircraft), kFullFlaps * dt / kFlapTime);
    // On the wheels a lock keeps the gear down, whatever its lever says.
    aircraft.gear = Towards(aircraft.gear, aircraft.on_ground ? 1 : aircraft.controls.gear, dt / kGearTime);
    const bool by_itself = aircraft.on_ground && aircraft.brakes.landed && aircraft.controls.armed_spoilers;
    aircraft.speedbrake =
        Towards(aircraft.speedbrake, by_itself ? 1 : aircraft.controls.speedbrake, dt / kBrakeTime);
    StepEngines(aircraft, dt);
    StepFires(aircraft, dt);
    StepCabin(aircraft.cabin, SettingOfCabin(aircraft), dt);
    for (WheelBrake& brake : aircraft.wheel_brakes)
        CoolBrake(brake, aircraft.gear > 0, aircraft.on_ground ? aircraft.ground_speed : aircraft.tas, dt);
    StepBank(aircraft, dt);
    if (aircraft.on_ground)
        StepRoll(aircraft, dt);
    else
        StepFlight(aircraft, dt);
    StepPlace(aircraft, dt);
    UpdateAirspeeds(aircraft);
}

bool HasAlternatingCurrent(const Aircraft& aircraft) {
    constexpr double kGenerates = 50;  // percent of N2
    return aircraft.switches.other_power || std::ranges::any_of(aircraft.engines, [](const Engine& engine) {
               return engine.n2 >= kGenerates;
           });
}

double Latitude(const Aircraft& aircraft) {
    return std::atan2(aircraft.place.z, std::hypot(aircraft.place.x, aircraft.place.y)) / kRad;
}

double Longitude(const Aircraft& aircraft) {
    return std::atan2(aircraft.place.y, aircraft.place.x) / kRad;
}

double TrueHeading(const Aircraft& aircraft) {
    return BearingOf(aircraft.nose, aircraft.place);
}

double FuelOnBoard(const Aircraft& aircraft) {
    return aircraft.fuel_lb[kLeftTank] + aircraft.fuel_lb[kRightTank] + aircraft.fuel_lb[kCentreTank];
}

double GrossWeight(const Aircraft& aircraft) {
    return std::accumulate(aircraft.payload_lb.begin(), aircraft.payload_lb.end(),
                           aircraft.airframe.empty_lb) +
           FuelOnBoard(aircraft);
}

double StallSpeed(const Aircraft& aircraft) {
    return StallSpeedAt(aircraft, aircraft.flaps);
}

double StallMargin(const Aircraft& aircraft) {
    const double stalls = MaxLift(aircraft) / kLiftPerDegree + ZeroLiftAngle(aircraft);
    return stalls - (aircraft.pitch - aircraft.path);
}

double StallSpeedAt(const Aircraft& aircraft, double flaps) {
    const double max_lift = kCleanMaxLift + EffectOfFlaps(flaps).max_lift;
    const double pressure = WeightNewton(aircraft) / (kWingArea * max_lift);
    return std::sqrt(2 * pressure / kSeaLevelDensity) * kKnotsPerMps;
}

}  // namespace host
