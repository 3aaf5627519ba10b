#include "host/aircraft/tokens.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "host/aircraft/angles.h"
#include "host/aircraft/magnetic_variation.h"
#include "host/aircraft/model_systems.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kLatPerDegree = 111130.555557, kLonPerDegree = 781874935307.4;
constexpr double kFull = 16384;  // of levers, handles and surfaces
constexpr double kFullTank = 8388608;
constexpr double kWheelsToRadar = 17.2;  // ft, the radar's place above the wheels
constexpr double kRankineOffset = 491.69;
constexpr int kSpoilerHandle = 325;
constexpr int kPositionDefinition = 0;
// What the simulator's client calls the right main, the left main and the centre tank, and the first of the
// five payload stations.
constexpr std::pair<int, FuelTank> kFuelDefinitions[] = {{2, kRightTank}, {3, kLeftTank}, {8, kCentreTank}};
constexpr int kFirstPayloadDefinition = 13;
constexpr const char* kPayloadExpressions[] = {
    "(A:Payload Station Weight:1,pounds)", "(A:Payload Station Weight:2,pounds)",
    "(A:Payload Station Weight:3,pounds)", "(A:Payload Station Weight:4,pounds)",
    "(A:Payload Station Weight:5,pounds)"};
constexpr int kTankTokens[] = {291, 297, 289};  // left main, right main, centre: level, then capacity

void FillMotion(const Aircraft& aircraft) {
    const double lat = Latitude(aircraft), lon = Longitude(aircraft);
    SetToken(82, MagneticVariation(lat, lon));
    const double heading = TrueHeading(aircraft);
    SetToken(71, lat * kLatPerDegree);
    SetToken(72, (lon < 0 ? lon + 360 : lon) * kLonPerDegree);
    SetToken(77, -aircraft.pitch);  // nose down positive
    SetToken(79, -aircraft.bank);   // left wing down positive
    SetToken(80, -aircraft.bank);
    SetToken(81, FoldDegrees(heading - TokenOf(82)));  // by a variation set by hand too
    SetToken(86, heading);
    SetToken(60, aircraft.on_ground ? 1 : 0);
    SetToken(63, aircraft.ias);
    SetToken(64, aircraft.mach * 20480);
    SetToken(65, aircraft.vertical_speed * 1.30048);
    SetToken(551, aircraft.ground_speed * 1.68781);
    SetToken(614, (aircraft.altitude - aircraft.ground_elevation + kWheelsToRadar) * kMetresPerFoot);
    SetCalc("(A:AIRSPEED TRUE, knots)", aircraft.tas);
    SetCalc("(A:INDICATED ALTITUDE, feet)", IndicatedAltitude(aircraft.altitude, TokenOf(75), aircraft.air));
    SetCalc("(A:ACCELERATION BODY Z,Feet per second squared)", aircraft.body_acceleration);
}

void FillAir(const Aircraft& aircraft) {
    const double altitude = IndicatedAltitude(aircraft.altitude, kStandardHpa, aircraft.air);
    const double static_k = Temperature(altitude, aircraft.air);
    SetToken(341, static_k - kZeroCelsius);
    SetToken(350, (static_k * (1 + 0.2 * aircraft.mach * aircraft.mach) - kZeroCelsius) / 256);
    SetToken(343, aircraft.wind_kt);
    SetToken(344, aircraft.air.wind_from);
}

void FillEngines(const Aircraft& aircraft) {
    struct EngineTokens {
        int combustion, starter, egt, n1, n2, corrected_n1, corrected_n2, lever, fire;
    };
    constexpr EngineTokens kTokens[] = {{560, 563, 567, 624, 625, 626, 627, 128, 887},
                                        {570, 573, 577, 643, 644, 645, 646, 163, 888}};
    for (std::size_t i = 0; i < aircraft.engines.size(); ++i) {
        const Engine& engine = aircraft.engines[i];
        const EngineTokens& tokens = kTokens[i];
        SetToken(tokens.combustion, engine.fuel_on ? 1 : 0);
        SetToken(tokens.starter, engine.starter ? 1 : 0);
        SetToken(tokens.egt, engine.egt_c * 9 / 5 + kRankineOffset);
        SetToken(tokens.n1, engine.n1);
        SetToken(tokens.n2, engine.n2);
        SetToken(tokens.corrected_n1, engine.n1);
        SetToken(tokens.corrected_n2, engine.n2);
        SetToken(tokens.lever, aircraft.controls.thrust_levers[i] * kFull);
        SetToken(tokens.fire, aircraft.fails[i == 0 ? kFireLeft : kFireRight] ? 1 : 0);
    }
    // No take-off is meant in reverse, nor until the fans have run down behind it.
    const double back = std::ranges::min(aircraft.controls.thrust_levers);
    const bool runs_down = TokenOf(641) != 0 && back == 0 && aircraft.engines[0].n1 > 50;
    SetToken(641, back < 0 || runs_down ? 1 : 0);
    struct EngineVariables {
        const char *flow, *ratio, *n1;
    };
    constexpr EngineVariables kVariables[] = {{"tz_eng1_fuel_flow", "TZ_Eng1_TPR", "TZ_Eng1_N1_calc"},
                                              {"tz_eng2_fuel_flow", "TZ_Eng2_TPR", "TZ_Eng2_N1_calc"}};
    for (std::size_t i = 0; i < aircraft.engines.size(); ++i) {
        const Engine& engine = aircraft.engines[i];
        SetModelValue(kVariables[i].flow, engine.fuel_flow);
        SetModelValue(kVariables[i].ratio, ThrustRatioOfN1(engine.n1));
        SetModelValue(kVariables[i].n1, CommandedN1(engine, aircraft.controls.thrust_levers[i]));
    }
}

void FillWeights(const Aircraft& aircraft) {
    SetToken(306, kFuelLbPerGallon);
    for (std::size_t tank = 0; tank < aircraft.fuel_lb.size(); ++tank) {
        const double capacity = kTankGallons[tank];
        SetToken(kTankTokens[tank], aircraft.fuel_lb[tank] / (capacity * kFuelLbPerGallon) * kFullTank);
        SetToken(kTankTokens[tank] + 1, capacity);
    }
    constexpr double kCgPercent = 24;  // its payload and fuel lie about the wing
    SetCalc("(A:EMPTY WEIGHT,pounds)", aircraft.airframe.empty_lb);
    SetCalc("(A:CG PERCENT,percent)", kCgPercent);
    for (std::size_t station = 0; station < aircraft.payload_lb.size(); ++station)
        SetCalc(kPayloadExpressions[station], aircraft.payload_lb[station]);
}

void FillSurfaces(const Aircraft& aircraft) {
    SetToken(326, aircraft.speedbrake * kFull);
    SetToken(327, aircraft.speedbrake * kFull);
    for (const int gear : {332, 333, 334}) SetToken(gear, aircraft.gear * kFull);
    SetToken(907, aircraft.flaps);
    SetCalc("(A:LEADING EDGE FLAPS LEFT ANGLE,degrees)", SlatAngle(aircraft.flaps));
    SetModelValue("TZ_Flaps_Handle_Index", FlapDetent(aircraft.airframe, aircraft.controls.flaps));
    SetModelValue("elev_trim_ind", aircraft.trim);
    SetModelValue("TZ_Flaps_load_relief", aircraft.load_relief ? 1 : 0);
}

// What the cockpit model and its gauges work out for themselves.
void FillModelVariables(const Aircraft& aircraft) {
    constexpr double kFastest = 360, kFastestMach = 0.90;
    constexpr double kMarginAtStall = 13000;  // of the pitch limit; a thousand is a degree
    const double stall = StallSpeed(aircraft);
    const double altitude = IndicatedAltitude(aircraft.altitude, kStandardHpa, aircraft.air);
    SetModelValue("airspeed_smooth", aircraft.ias);
    SetModelValue("TZ_V_S", stall);
    SetModelValue("TZ_V_A", stall * 1.3);
    const double fastest = std::min(kFastest, CasOfMach(kFastestMach, altitude));
    SetModelValue("TZ_V_MO", fastest);
    SetToken(349, fastest * 128);
    SetToken(354, kMarginAtStall + StallMargin(aircraft) * 1000);
    SetCalc("(A:Design Speed VS0, knots)", stall);
    SetCalc("(A:Design Speed VS1, knots)", stall);
}

double NumberWritten(const std::vector<std::uint8_t>& bytes) {
    double value = 0;
    if (bytes.size() == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
    return std::isfinite(value) ? std::max(value, 0.0) : 0;
}

// The simulator's record of a position in the air: pitch and bank are not taken, the aircraft comes trimmed.
void TakePosition(const std::vector<std::uint8_t>& bytes, Aircraft& aircraft) {
    struct {
        double lat, lon, alt_ft, pitch, bank, heading;
        std::uint32_t on_ground, ias;
    } record;
    if (bytes.size() != sizeof record) return;
    std::memcpy(&record, bytes.data(), sizeof record);
    const bool usable = std::fabs(record.lat) <= 90 && std::fabs(record.lon) <= 180 &&
                        std::fabs(record.alt_ft) <= 60000 && std::isfinite(record.heading);
    if (!usable || record.ias > 500) return;
    constexpr double kClearOfGround = 100;  // ft, until the terrain there is known
    PlaceAircraftAt(aircraft, record.lat, record.lon, record.alt_ft, record.heading, record.ias,
                    std::min(aircraft.ground_elevation, record.alt_ft - kClearOfGround));
}

}  // namespace

void FillTokens(const Aircraft& aircraft) {
    FillMotion(aircraft);
    FillAir(aircraft);
    FillEngines(aircraft);
    FillWeights(aircraft);
    FillSurfaces(aircraft);
    FillModelVariables(aircraft);
    if (world.ticks % kSurfaceTicks == 0) FillControlSurfaces(aircraft);
    if (world.ticks % kSystemTicks == 0) FillModelSystems(aircraft);
}

void TakeControlsFromTokens(Aircraft& aircraft) {
    constexpr int kLevers[] = {128, 163};
    for (std::size_t i = 0; i < std::size(kLevers); ++i)
        aircraft.controls.thrust_levers[i] = std::clamp(TokenOf(kLevers[i]) / kFull, kFullReverse, 1.0);
    aircraft.controls.flaps = FlapAngleOfHandle(aircraft.airframe, TokenOf(328));
    aircraft.controls.speedbrake = std::clamp(TokenOf(kSpoilerHandle) / kFull, 0.0, 1.0);
    aircraft.controls.gear = TokenOf(331) > 0 ? 1 : 0;
    aircraft.controls.armed_spoilers = TokenOf(324) != 0;
    aircraft.controls.autobrake = static_cast<int>(std::clamp(NamedValue("auto_brake_switch"), -1.0, 9.0));
    aircraft.controls.wheel_brakes = TokenOf(323) >= 32000 ? 1 : 0;
    constexpr int kCombustion[] = {560, 570}, kStarter[] = {563, 573};
    for (std::size_t i = 0; i < aircraft.engines.size(); ++i) {
        Engine& engine = aircraft.engines[i];
        engine.fuel_on = TokenOf(kCombustion[i]) != 0;
        // Combustion set by hand is an engine that runs: it starts by itself.
        const bool by_itself = engine.fuel_on && world.pinned[static_cast<std::size_t>(kCombustion[i])];
        engine.starter = TokenOf(kStarter[i]) != 0 || (by_itself && !engine.running);
    }
    TakeSwitches(aircraft);
}

bool TakeDataWrites(Aircraft& aircraft) {
    if (world.data_writes.empty()) return false;
    for (const SimDataWrite& write : world.data_writes) {
        if (write.definition == kPositionDefinition) TakePosition(write.bytes, aircraft);
        const double value = NumberWritten(write.bytes);
        for (const auto& [definition, tank] : kFuelDefinitions)
            if (write.definition == definition)
                aircraft.fuel_lb[tank] = std::min(value, kTankGallons[tank]) * kFuelLbPerGallon;
        const int station = write.definition - kFirstPayloadDefinition;
        if (station < 0 || station >= static_cast<int>(aircraft.payload_lb.size())) continue;
        aircraft.payload_lb[static_cast<std::size_t>(station)] = value;
    }
    world.data_writes.clear();
    return true;
}

}  // namespace host
