#include "host/aircraft/aircraft.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "host/aircraft/magnetic_variation.h"
#include "host/aircraft/tokens.h"
#include "host/world/world.h"

namespace {

using namespace host;

void FlyFor(Aircraft& aircraft, double seconds) {
    for (int i = 0; i < static_cast<int>(seconds * 18); ++i) StepAircraft(aircraft, 1 / 18.0);
}

// Standard atmosphere tables (ICAO Doc 7488) and the airspeed conversions that follow from them.
TEST(Air, FollowsTheStandardAtmosphere) {
    const AirMass standard;
    struct {
        double altitude, kelvin, pascal, density, sound_kt;
    } const rows[] = {
        {0, 288.15, 101325, 1.2250, 661.5},
        {10000, 268.34, 69682, 0.9046, 638.3},
        {36089, 216.65, 22632, 0.3639, 573.6},
        {45000, 216.65, 14748, 0.2371, 573.6},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(Temperature(row.altitude, standard), row.kelvin, 0.02) << row.altitude;
        EXPECT_NEAR(Pressure(row.altitude), row.pascal, row.pascal * 0.001) << row.altitude;
        EXPECT_NEAR(Density(row.altitude, standard), row.density, 0.0005) << row.altitude;
        EXPECT_NEAR(SpeedOfSound(row.altitude, standard), row.sound_kt, 0.3) << row.altitude;
    }
    // 300 kt CAS at 35000 ft is Mach 0.874, and 250 kt at sea level Mach 0.378
    EXPECT_NEAR(MachOfCas(300, 35000), 0.8736, 0.001);
    EXPECT_NEAR(MachOfCas(250, 0), 0.378, 0.001);
    EXPECT_NEAR(CasOfMach(MachOfCas(287, 31000), 31000), 287, 1e-6);
    AirMass warm;
    warm.isa_deviation = 10;
    warm.qnh = 1003.25;
    EXPECT_NEAR(Temperature(10000, warm), 278.34, 0.02);
    EXPECT_NEAR(IndicatedAltitude(5000, 1013.25, warm), 5273, 1);
}

// The model's own values at epoch 2005: NOAA's calculator for the World Magnetic Model 2005.
TEST(MagneticVariation, IsNearTheFullModel) {
    struct {
        double lat, lon, variation;
    } const places[] = {{47.4, -122.3, 17.6}, {51.5, -0.5, -2.6}, {35.6, 140.4, -6.9}, {-33.9, 151.2, 12.5}};
    for (const auto& place : places)
        EXPECT_NEAR(MagneticVariation(place.lat, place.lon), place.variation, 1.5)
            << place.lat << " " << place.lon;
}

TEST(Aircraft, StaysTrimmedAndBurnsFuelAsAWideBodyDoes) {
    Aircraft aircraft;
    aircraft.airframe = AirframeOf("TZ900-9");
    PlaceAircraftAt(aircraft, 47, -122, 35000, 90, 270, 0);
    EXPECT_EQ(aircraft.airframe.name, "900-9");
    const double fuel = FuelOnBoard(aircraft), weight = GrossWeight(aircraft);
    FlyFor(aircraft, 600);
    EXPECT_NEAR(aircraft.altitude, 35000, 1);
    EXPECT_NEAR(aircraft.ias, 270, 2);
    EXPECT_NEAR(TrueHeading(aircraft), 90 + 10 / 6.0 * 0.05, 3);
    const double burnt_an_hour = (fuel - FuelOnBoard(aircraft)) * 6;
    EXPECT_GT(burnt_an_hour, 8000);
    EXPECT_LT(burnt_an_hour, 13000);
    EXPECT_NEAR(weight - GrossWeight(aircraft), burnt_an_hour / 6, 1e-6);
}

// A level turn: rate = g tan(bank) / V, so 25 degrees at 250 m/s turns 1.048 degrees a second.
TEST(Aircraft, TurnsAsItsBankTells) {
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, 0, 0, 30000, 0, 300, 0);
    aircraft.controls.bank = 25;
    FlyFor(aircraft, 6);
    const double before = TrueHeading(aircraft), speed = aircraft.tas / kKnotsPerMps;
    FlyFor(aircraft, 10);
    EXPECT_NEAR(aircraft.bank, 25, 0.1);
    EXPECT_NEAR(TrueHeading(aircraft) - before, 10 * 57.29578 * 9.80665 * std::tan(25 / 57.29578) / speed,
                0.3);
    // a roll takes seconds, not a tick
    aircraft.controls.bank = -25;
    FlyFor(aircraft, 2);
    EXPECT_GT(aircraft.bank, 5);
    FlyFor(aircraft, 10);
    EXPECT_NEAR(aircraft.bank, -25, 0.1);
}

TEST(Aircraft, CrossesPoleAndDateLineStraightAhead) {
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, 89.5, 30, 35000, 0, 270, 0);
    FlyFor(aircraft, 480);  // some 60 nm: over the pole and down the opposite meridian
    EXPECT_NEAR(Longitude(aircraft), -150, 0.01);
    EXPECT_NEAR(TrueHeading(aircraft), 180, 0.01);
    EXPECT_NEAR(90 - Latitude(aircraft), aircraft.ground_speed * 480 / 3600 / 60 - 0.5, 0.01);
    PlaceAircraftAt(aircraft, 0, 179.9, 35000, 90, 270, 0);
    FlyFor(aircraft, 120);
    EXPECT_NEAR(Longitude(aircraft), -180.1 + aircraft.ground_speed * 120 / 3600 / 60, 0.01);
    EXPECT_NEAR(TrueHeading(aircraft), 90, 0.01);
}

TEST(Aircraft, DriftsWithTheWind) {
    Aircraft aircraft;
    aircraft.air.wind_from = 0;
    aircraft.air.wind_kt = 100;
    PlaceAircraftAt(aircraft, 0, 0, 35000, 90, 270, 0);
    FlyFor(aircraft, 360);
    EXPECT_NEAR(Latitude(aircraft) * 60, -10, 0.1);
    EXPECT_NEAR(Longitude(aircraft) * 60, aircraft.tas / 10, 0.3);
    EXPECT_NEAR(aircraft.ground_speed, std::hypot(aircraft.tas, 100), 0.5);
    EXPECT_NEAR(aircraft.track, 90 + 57.29578 * std::atan(100 / aircraft.tas), 0.1);
}

TEST(Aircraft, LeavesTheGroundOnlyWithSpeedAndAPull) {
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, 47, -122, 430, 160, 0, 430);
    ASSERT_TRUE(aircraft.on_ground);
    aircraft.controls.wheel_brakes = 1;
    FlyFor(aircraft, 30);
    EXPECT_EQ(aircraft.ground_speed, 0);
    aircraft.controls.wheel_brakes = 0;
    aircraft.controls.thrust_levers.fill(1);
    aircraft.controls.flaps = aircraft.flaps = 5;
    FlyFor(aircraft, 60);
    EXPECT_TRUE(aircraft.on_ground);
    EXPECT_GT(aircraft.ias, 150);
    aircraft.controls.path = 8;
    FlyFor(aircraft, 15);
    EXPECT_FALSE(aircraft.on_ground);
    EXPECT_GT(aircraft.vertical_speed, 1000);
}

// The tables that predictions are made from, within what the variants and engines differ by: climb rates at
// climb thrust and the flow per mile in cruise.
TEST(Aircraft, PerformsAsItsTablesBelieve) {
    const auto with_weight = [](const char* sim, const char* engines, double weight) {
        Aircraft aircraft;
        aircraft.airframe = AirframeOf(sim, engines);
        aircraft.fuel_lb = {20000, 20000, 0};
        aircraft.payload_lb = {weight - 40000 - aircraft.airframe.empty_lb};
        return aircraft;
    };
    struct {
        double altitude, tas, weight, fpm;
    } const climbs[] = {{15000, 340, 450000, 2000},
                        {20000, 370, 400000, 1800},
                        {25000, 400, 450000, 1100},
                        {30000, 430, 500000, 800}};
    for (const char* sim : {"TZ900-8", "TZ900-9"}) {
        for (const auto& climb : climbs) {
            Aircraft aircraft = with_weight(sim, "rr", climb.weight);
            const double ias = CasOfMach(climb.tas / SpeedOfSound(climb.altitude, {}), climb.altitude);
            PlaceAircraftAt(aircraft, 0, 0, climb.altitude, 0, ias, 0);
            aircraft.controls.thrust_levers.fill(0.938);  // climb thrust
            FlyFor(aircraft, 10);
            // What the thrust has left, at a constant indicated speed: the acceleration factor of performance
            // engineering.
            const double gain = 1 + 0.566 * aircraft.mach * aircraft.mach;
            const double fpm = aircraft.body_acceleration / 32.174 / gain * aircraft.tas * 101.27;
            EXPECT_NEAR(fpm, climb.fpm, 500) << sim << " " << climb.altitude;
        }
        for (const char* engines : {"rr", "ge"}) {
            Aircraft aircraft = with_weight(sim, engines, 450000);
            PlaceAircraftAt(aircraft, 0, 0, 35000, 0, CasOfMach(0.83, 35000), 0);
            FlyFor(aircraft, 5);
            const double per_mile = 2 * aircraft.engines[0].fuel_flow / aircraft.tas;
            EXPECT_NEAR(per_mile, 10800 / 435.0, 0.05 * 25) << sim << engines;
        }
    }
}

// The descent from 35000 ft is planned for 280 kt with 1400 ft a minute at 353.5 kt: from there engines at
// idle bring an aircraft with its fuel used up to a constraint within three miles of the place.
TEST(Aircraft, ComesDownItsPlannedPathAtIdle) {
    struct {
        double altitude, ias;
    } const constraints[] = {{17000, 283}, {10000, 240}};
    for (const char* sim : {"900-8", "900-9", "900-10"}) {
        for (const auto& constraint : constraints) {
            Aircraft aircraft;
            aircraft.airframe = AirframeOf(sim);
            aircraft.fuel_lb = {20000, 20000, 0};
            PlaceAircraftAt(aircraft, 0, 0, 35000, 90, CasOfMach(0.836, 35000), 0);
            aircraft.controls.thrust_levers.fill(0);
            double before = aircraft.ias, miles = 0;
            const auto is_there = [&] {
                return aircraft.altitude <= constraint.altitude && aircraft.ias < constraint.ias + 2;
            };
            for (int tick = 0; !is_there() && tick < 18 * 3600; ++tick) {
                const double rate = (aircraft.ias - before) * 18;
                before = aircraft.ias;
                // Pitch for the speed; level at the constraint's altitude until it is slow enough.
                const double wanted = std::clamp((283 - aircraft.ias) / 12, -1.0, 1.0);
                aircraft.controls.path =
                    std::clamp(aircraft.controls.path + (rate - wanted) * 0.04, -6.0, -0.5);
                if (aircraft.altitude <= constraint.altitude) aircraft.controls.path = 0;
                StepAircraft(aircraft, 1 / 18.0);
                miles += aircraft.ground_speed / 3600 / 18;
            }
            EXPECT_NEAR(miles, (35000 - constraint.altitude) / 1400 * 353.5 / 60, 3)
                << sim << " " << constraint.altitude;
        }
    }
}

// What alerts and checklists look for: take-off flaps between 34 and 49.5 (52) degrees of flaps and slats
// together, landing flaps from 52 (57) on, and only retracted flaps below 19; the trim set for take-off.
TEST(AircraftTokens, FlapsAndTrimStandWhereTheCrewsListsWantThem) {
    for (const char* sim : {"900-8", "900-9", "900-10"}) {
        world = {};
        Aircraft aircraft;
        aircraft.airframe = AirframeOf(sim);
        PlaceAircraftAt(aircraft, 47, -122, 400, 90, 0, 400);
        const bool small = aircraft.airframe.name == "900-8";
        const int full = small ? 14043 : 16384, detents = small ? 6 : 9;
        for (int detent = 0; detent <= detents; ++detent) {
            SetToken(328, std::round(static_cast<double>(full) * detent / detents));
            TakeControlsFromTokens(aircraft);
            FlyFor(aircraft, 45);
            FillTokens(aircraft);
            const double flaps = TokenOf(907);
            const double sum = flaps + CalcOf("(A:LEADING EDGE FLAPS LEFT ANGLE,degrees)");
            SCOPED_TRACE(testing::Message() << sim << " at " << flaps);
            EXPECT_EQ(NamedValue("TZ_Flaps_Handle_Index"), detent);
            EXPECT_EQ(sum < 19, detent == 0);
            if (flaps >= 5 && flaps <= 20) {
                EXPECT_GE(sum, 34);
                EXPECT_LT(sum, 49.5);
            }
            if (flaps >= 25) {
                EXPECT_GE(sum, small ? 52 : 57);
            }
        }
        EXPECT_NEAR(TokenOf(907), 30, 0.01);
        EXPECT_NEAR(NamedValue("elev_trim_ind"), 6, 3);
    }
    WriteByHand("elev_trim_ind", 12);
    FillTokens(Aircraft{});
    EXPECT_EQ(NamedValue("elev_trim_ind"), 12) << "what a scenario has written stays";
}

// Raw units, by the inverse of what the instruments make of them.
TEST(AircraftTokens, CarryTheRawUnits) {
    world = {};
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, -33.5, -70.25, 31000, 123, 280, 0);
    aircraft.bank = 20;
    aircraft.pitch = 3;
    aircraft.vertical_speed = 1200;
    aircraft.ground_speed = 480;
    SetToken(75, 1013.25);
    PinToken(341, -5);
    FillTokens(aircraft);
    struct {
        int token;
        double value;
    } const rows[] = {
        {71, -33.5 * 111130.555557},
        {72, 289.75 * 781874935307.4},
        {77, -3},
        {79, -20},
        {80, -20},
        {86, 123},
        {65, 1200 * 1.30048},
        {551, 480 * 1.68781},
        {614, 31017.2 * 0.3048},
        {60, 0},
        {341, -5},
        {332, 0},
        {289, 40000 / (22340 * 6.7) * 8388608},
        {290, 22340},
        {291, 30000 / (5570 * 6.7) * 8388608},
        {306, 6.7},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(TokenOf(row.token), row.value, std::fabs(row.value) * 1e-9 + 1e-6) << row.token;
    EXPECT_NEAR(TokenOf(81) + TokenOf(82), 123, 1e-9);
    EXPECT_NEAR(TokenOf(64) / 20480, aircraft.mach, 1e-9);
    // ISA at 31,000 ft is 226.7 K; the air stagnates at M 0.76 by 26 K.
    EXPECT_NEAR(TokenOf(350) * 256, 226.73 * (1 + 0.2 * aircraft.mach * aircraft.mach) - 273.15, 0.02);
    EXPECT_NEAR(TokenOf(350) * 256, -20, 2);
    EXPECT_NEAR(CalcOf("(A:INDICATED ALTITUDE, feet)"), 31000, 1e-6);
}

TEST(AircraftTokens, AnEngineIsCrankedLitAndCutOff) {
    world = {};
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, 47, -122, 400, 90, 0, 400);
    for (Engine& engine : aircraft.engines) engine = Engine{.running = false, .fuel_on = false};
    FillTokens(aircraft);
    SetToken(323, 32767);  // brakes
    const auto n2_after = [&](double seconds) {
        TakeControlsFromTokens(aircraft);
        FlyFor(aircraft, seconds);
        FillTokens(aircraft);
        return TokenOf(644);
    };
    EXPECT_EQ(n2_after(10), 0);
    SetToken(573, 1);
    EXPECT_GT(n2_after(30), 25) << "enough to light it";
    EXPECT_LT(TokenOf(644), 30) << "the starter alone gets it no further";
    EXPECT_EQ(TokenOf(643), 0);
    SetToken(570, 1);
    EXPECT_LT(n2_after(5), 50) << "too slow yet for a generator";
    EXPECT_NEAR(n2_after(40), 65, 0.5);
    EXPECT_NEAR(TokenOf(643), 22, 0.5);
    SetToken(573, 0);
    SetToken(570, 0);
    EXPECT_LT(n2_after(5), 50);
    EXPECT_LT(n2_after(60), 1);
}

TEST(AircraftTokens, ControlsSetByTokenMoveTheAircraft) {
    world = {};
    Aircraft aircraft;
    PlaceAircraftAt(aircraft, 47, -122, 20000, 90, 280, 0);
    FillTokens(aircraft);
    SetToken(128, 16384);
    SetToken(328, 7021);
    SetToken(331, 1);
    SetToken(570, 0);  // the right engine's fuel is cut off
    TakeControlsFromTokens(aircraft);
    FlyFor(aircraft, 60);
    EXPECT_NEAR(aircraft.flaps, 15, 0.01);
    EXPECT_NEAR(aircraft.gear, 1, 0.01);
    EXPECT_GT(aircraft.engines[0].n1, 95);
    EXPECT_GT(aircraft.engines[0].fuel_flow, 10000);
    EXPECT_NEAR(aircraft.engines[1].n1, 10, 2) << "the wind turns it";
    EXPECT_EQ(aircraft.engines[1].fuel_flow, 0);
    FillTokens(aircraft);
    EXPECT_EQ(TokenOf(560), 1);
    EXPECT_EQ(TokenOf(570), 0);
}

TEST(AircraftTokens, FuelThatTheModuleWritesIsInTheTanks) {
    world = {};
    Aircraft aircraft;
    const auto write = [](int definition, double value) {
        SimDataWrite data{definition, std::vector<std::uint8_t>(sizeof value)};
        std::memcpy(data.bytes.data(), &value, sizeof value);
        world.data_writes.push_back(data);
    };
    EXPECT_FALSE(TakeDataWrites(aircraft));
    write(2, 1000);    // right main, gallons
    write(8, 1e9);     // more than the centre tank holds
    write(13, 12345);  // first payload station, pounds
    write(3, std::nan(""));
    world.data_writes.push_back({3, {1, 2}});  // no number
    EXPECT_TRUE(TakeDataWrites(aircraft));
    EXPECT_NEAR(aircraft.fuel_lb[kRightTank], 6700, 1e-9);
    EXPECT_NEAR(aircraft.fuel_lb[kCentreTank], 22340 * 6.7, 1e-9);
    EXPECT_EQ(aircraft.payload_lb[0], 12345);
    EXPECT_EQ(aircraft.fuel_lb[kLeftTank], 0);
}

TEST(AircraftTokens, APositionThatTheModuleWritesIsTaken) {
    world = {};
    Aircraft aircraft;
    struct {
        double lat, lon, alt_ft, pitch, bank, heading;
        std::uint32_t on_ground, ias;
    } record = {51.5, -0.25, 9000, 0, -1, 270, 0, 250};
    SimDataWrite data{0, std::vector<std::uint8_t>(sizeof record)};
    const auto place = [&] {
        std::memcpy(data.bytes.data(), &record, sizeof record);
        world.data_writes.push_back(data);
        TakeDataWrites(aircraft);
    };
    place();
    record.lat = 91;  // nowhere
    place();
    EXPECT_NEAR(Latitude(aircraft), 51.5, 1e-9);
    EXPECT_NEAR(Longitude(aircraft), -0.25, 1e-9);
    EXPECT_NEAR(TrueHeading(aircraft), 270, 1e-6);
    EXPECT_NEAR(aircraft.altitude, 9000, 1e-6);
    EXPECT_NEAR(aircraft.ias, 250, 0.1);
    EXPECT_FALSE(aircraft.on_ground);
}

}  // namespace
