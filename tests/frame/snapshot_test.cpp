#include "frame/snapshot.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/bcd.h"
#include "frame/tokens.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "support/fake_host.h"

namespace {

TEST(Snapshot, RawValuesBecomeUnits) {
    FakeHost host;
    cfg.simver = 11;
    host.tokens = {{kTokenGroundSpeed, -168.781},
                   {kTokenIas, 100},
                   {kTokenMach, 17408},
                   {kTokenVerticalSpeed, -1300.48},
                   {kTokenLat, 5278701.3890575},
                   {kTokenLon, 2.345624805922e14},
                   {kTokenBaro, 1013.25},
                   {kTokenPitch, -30},
                   {kTokenBank, 0.03},
                   {kTokenRadarAltitude, 100},
                   {kTokenNav1Freq, 0x0930},
                   {kTokenNav1Codes, 0xc0},
                   {kTokenNav1Radial, 16384 * 0.75},
                   {kTokenTransponder, 0x7421},
                   {kTokenTat, 0.125},
                   {kTokenEng1Egt, 1211.69},
                   {kTokenSimRate, 512},
                   {kTokenAdf1Freq, 0x0345},
                   {kTokenAdf1FreqExtended, 0x0105},
                   {kTokenFuelWeightPerGallon, 6.7},
                   {291, 8388608 * 0.5},
                   {292, 5000},
                   {301, 8388608},
                   {302, 100},
                   {289, 8388608 * 0.25},
                   {290, 20000}};
    host.calc_numbers["(A:INDICATED ALTITUDE, feet)"] = 12345;
    ReadMotion();
    ReadSnapshot();
    ReadSimRate();
    EXPECT_NEAR(sim.ground_speed_kt, 100, 1e-9);
    EXPECT_NEAR(sim.ias_kt, 30, 1e-9);
    EXPECT_EQ(sim.ind_alt_ft, 12345);
    EXPECT_NEAR(sim.mach, 0.85, 1e-12);
    EXPECT_NEAR(sim.vs_fpm, -1000, 1e-9);
    EXPECT_NEAR(sim.plane_lat, 47.5, 1e-9);
    EXPECT_NEAR(sim.plane_lon, -60, 1e-6);
    EXPECT_NEAR(sim.baro_in, 29.92, 1e-9);
    EXPECT_EQ(sim.bank_deg, 0);
    EXPECT_NEAR(sim.radio_alt_ft, 328.08399 + 20 - 17.2, 1e-6);
    EXPECT_EQ(sim.nav1_freq, 10930);
    EXPECT_EQ(sim.nav1_is_loc, 1);
    EXPECT_EQ(sim.nav1_has_gs, 1);
    EXPECT_NEAR(sim.nav1_radial, 90, 1e-9);
    EXPECT_EQ(sim.transponder_code, 7421);
    EXPECT_EQ(sim.tat_c, 32);
    EXPECT_NEAR(sim.egt_l, 400, 1e-9);
    EXPECT_EQ(sim.sim_rate, 2);
    EXPECT_NEAR(sim.adf1_freq, 1345.5, 1e-9);
    EXPECT_NEAR(sim.left_fuel, 16750, 1e-6);
    EXPECT_NEAR(sim.right_fuel, 670, 1e-6);
    EXPECT_NEAR(sim.centre_fuel, 33500, 1e-6);
    EXPECT_NEAR(sim.total_fuel, 50920, 1e-6);
    host.tokens[kTokenBank] = -0.5;
    ReadMotion();
    EXPECT_NEAR(sim.ias_kt, 0.7 * 30 + 30, 1e-9);
    EXPECT_EQ(sim.bank_deg, -0.5);
    // what is no number passes: the speed goes on from what it was, and no engine burns
    host.tokens[kTokenIas] = host.tokens[kTokenEng1Fire] = std::nan("");
    ReadMotion();
    ReadSnapshot();
    EXPECT_NEAR(sim.ias_kt, 0.7 * 30 + 30, 1e-9);
    EXPECT_EQ(sim.eng1_fire, 0);
}

TEST(Snapshot, WindMakesDriftAboveTheRunwayOnly) {
    FakeHost host;
    // 60 kt from straight right: 400 kt of true airspeed, drift atan(60 / 400) to the left.
    host.tokens = {{kTokenGroundSpeed, 400 * 1.68781}, {kTokenTrueHeading, 5}, {kTokenMagHeading, 350},
                   {kTokenWindDirection, 95},          {kTokenWindSpeed, 60},  {kTokenRadarAltitude, 1000}};
    ReadMotion();
    ReadSnapshot();
    EXPECT_NEAR(sim.tas_kt, 400, 1e-9);
    EXPECT_NEAR(sim.drift_deg, 8.5308, 1e-4);
    EXPECT_NEAR(sim.true_track_deg, 356.4692, 1e-4);
    EXPECT_NEAR(sim.mag_track_deg, 341.4692, 1e-4);
    host.tokens[kTokenWindDirection] = 5;
    ReadSnapshot();
    EXPECT_NEAR(sim.tas_kt, 460, 1e-9);  // a headwind adds to the ground speed
    EXPECT_NEAR(sim.drift_deg, 0, 1e-9);
    host.tokens[kTokenWindDirection] = 95;
    host.tokens[kTokenRadarAltitude] = 100;
    ReadSnapshot();
    EXPECT_EQ(sim.true_track_deg, 5);
}

TEST(Snapshot, FlightSecondsFollowTheSecondsToken) {
    FakeHost host;
    time_base.et_clock_running = 1;
    time_base.et_seconds = 59;
    const auto second = [&](int value) {
        host.tokens[kTokenLocalSecond] = value;
        ReadSnapshot();
        StepFlightClock();
    };
    second(58);
    flight_log.fplog_mode = 3;
    second(58);
    second(59);
    second(0);
    EXPECT_EQ(time_base.fltsecs, 2);
    EXPECT_EQ(time_base.et_minutes, 1);
    EXPECT_EQ(time_base.et_seconds, 1);
    flight_log.fplog_mode = 11;
    second(1);
    EXPECT_EQ(time_base.fltsecs, 2);
}

TEST(Snapshot, BcdTakesAnyNumber) {
    EXPECT_EQ(DecodeBcd(0x12345678), 12345678);
    for (const double odd : {-1.0, 1e300, 0.0}) EXPECT_EQ(DecodeBcd(odd), 0);
}

}  // namespace
