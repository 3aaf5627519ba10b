#include "fmc/performance/winds.h"

#include <gtest/gtest.h>

#include <string>

#include "state/airports.h"
#include "state/leg_words.h"
#include "state/module_life.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/winds.h"
#include "support/fake_host.h"

namespace {

// Due north along the Greenwich meridian: 1 flown to, 2 behind it.
void PlanNorth() {
    for (const int i : {0, 1, 2}) {
        plan.active.legs[i].ident = "FIX";
        plan.active.legs[i].lat = i;
        plan.active.legs[i].alt = 30000;
    }
    plan.active.leg_cnt = 2;
    plan.active.stpos = 1;
    sim.plane_lat = 0.5;
    sim.ind_alt_ft = 11000;
}

using Levels = std::array<WindLevel, 4>;

TEST(Winds, AlongTheLegAtTheNearestAltitude) {
    const struct {
        Levels levels;
        int prev_leg, leg;
        double wind;
    } kCases[] = {
        {{}, 1, 2, 0},
        {{{{30000, 180, 50}}}, 1, 2, 50},                    // from behind
        {{{{30000, 0, 50}}}, 1, 2, -50},                     // ahead
        {{{{30000, 300, 50}}}, 1, 2, -25},                   // 60 degrees off the nose
        {{{{28000, 180, 20}, {32000, 180, 70}}}, 1, 2, 20},  // two as near: the first
        {{{{0, 180, 90}, {39000, 180, 70}}}, 1, 2, 70},      // an empty level doesn't count
        {{{{30000, 180, 50}, {10000, 180, 10}}}, 0, 1, 10},  // flown to: the aircraft's altitude
    };
    for (const auto& row : kCases) {
        FakeHost host;
        PlanNorth();
        plan.active.legs[row.prev_leg].wind = row.levels;
        EXPECT_NEAR(LegWind(row.prev_leg, row.leg), row.wind, 1e-9);
    }
}

TEST(Winds, TheForecastOfTheDescentStandsBeforeTheLegs) {
    FakeHost host;
    PlanNorth();
    plan.active.legs[1].wind = {{{30000, 180, 50}}};
    EXPECT_NEAR(DescentWind(2), 50, 1e-9);
    plan.active.legs[2].alt = 5000;
    winds.DescentForecast = {{{31000, 180, 90}, {6000, 0, 15}}};
    EXPECT_NEAR(DescentWind(2), -15, 1e-9);
}

// Along the Greenwich meridian again; ABCD and its namesake in place stand at 1 N.
class WeatherFiles : public testing::Test {
  protected:
    WeatherFiles() {
        winds.ActiveSkyFolder = "\\Weather";
        plan.mod.leg_cnt = 3;
        for (int i = 0; i <= plan.mod.leg_cnt; ++i) {
            plan.mod.legs[i].ident = "LEG" + std::to_string(i);
            plan.mod.legs[i].lat = i;
        }
        perf.cruise_alt = 33000;
        PutStations(
            "ABCD,1.0,0.0\r\nEFGH 1 0\r\nIJKL, 2.9 ,0\nCUT 3\n\nNANN nan nan\nWORD,north,east\nMUTE 2.1 0\n" +
            std::string(3000, 'X'));
        PutSnapshot(
            "ABCD::ABCD 011200Z 25725KT 12/06 "
            "A2992::TAF::001,1/002,2/003,3/004,4/005,5/006,6/007,7/340,80/009,9\r\n"
            "ABCD::later::::010,99/010,99/010,99/010,99/010,99/010,99/010,99/010,99/010,99\n"
            "IJKL::IJKL R16/2000 10SM "
            "M05/M11::::x/110,nan/-10,20/120,-5/361,9/130,400/130,1e999/9/270,45,-52\n"
            "no\n\nEFGH\n");
    }
    void PutStations(const std::string& text) const { host.PutFile("Weather/wx_station_list.txt", text); }
    void PutSnapshot(const std::string& text) const { host.PutFile("Weather/current_wx_snapshot.txt", text); }
    static const FlightPlanLeg& Leg(int index) { return plan.mod.legs[index]; }
    FakeHost host;
};

TEST_F(WeatherFiles, TheNearestStationsWindAtEachOfTheLegsLevels) {
    plan.mod.legs[1].wind = {{{21000, 0, 0}, {0, 90, 9}, {38000, 0, 0}}};
    ASSERT_TRUE(RequestRouteWinds());
    ASSERT_EQ(winds.wx_station_cnt, 3);
    EXPECT_EQ(winds.WxStations[1].ident, "ABCD");  // of two as near the first
    EXPECT_EQ(winds.WxStations[1].lat_text, "1.000000");
    EXPECT_EQ(winds.WxStations[1].levels[7], "340,80");
    EXPECT_EQ(winds.WxStations[2].ident, "MUTE");
    EXPECT_EQ(winds.WxStations[2].levels[0], "");
    ApplyRouteWinds(1);
    EXPECT_EQ(Leg(1).wind[0].dir, 5);  // of 18000 and 24000, as near, the first
    EXPECT_EQ(Leg(1).wind[1].spd, 9);
    EXPECT_EQ(Leg(1).wind[2].spd, 9);      // 39000
    EXPECT_EQ(Leg(2).wind[0].alt, 0);      // a station without weather
    EXPECT_EQ(Leg(3).wind[0].alt, 21000);  // the altitudes of the last leg that had some
    EXPECT_EQ(Leg(3).wind[0].spd, 0);      // nothing readable at 18000
    EXPECT_EQ(Leg(3).wind[2].dir, 270);
    EXPECT_EQ(plan.fms_fpln_active, kRouteEntered);
}

TEST_F(WeatherFiles, WhatTellsNoWindLeavesTheLevel) {
    for (const int altitude : kWxLevels) {
        plan.mod.legs[3].wind = {{{altitude, 77, 7}}};
        ASSERT_TRUE(RequestRouteWinds());
        ApplyRouteWinds(1);
        EXPECT_EQ(Leg(3).wind[0].dir, altitude == 39000 ? 270 : 77) << altitude;
        EXPECT_EQ(Leg(3).wind[0].spd, altitude == 39000 ? 45 : 7) << altitude;
    }
}

TEST_F(WeatherFiles, WindsFollowTheirLegsThroughAnEdit) {
    plan.mod.legs[3].wind = {{{39000, 0, 0}}};
    ASSERT_TRUE(RequestRouteWinds());
    plan.mod.legs[4] = plan.mod.legs[3];
    plan.mod.legs[3] = plan.mod.legs[2];
    plan.mod.legs[2].ident = "NEW";
    plan.mod.legs[2].lon = 2;
    plan.mod.leg_cnt = 4;
    ApplyRouteWinds(1);
    EXPECT_EQ(Leg(1).wind[0].alt, 33000);  // no level yet: the cruise altitude, and its nearest group
    EXPECT_EQ(Leg(1).wind[0].spd, 80);
    EXPECT_EQ(Leg(2).wind[0].alt, 0);
    EXPECT_EQ(Leg(4).wind[0].dir, 270);
}

TEST_F(WeatherFiles, TheForecastAndTheTemperatureOfTheDestination) {
    for (int i = 0; i <= 3; ++i) plan.active.legs[i] = plan.mod.legs[i];
    plan.active.leg_cnt = 3;
    airports.dest_airport.elevation_ft = 430;
    ASSERT_TRUE(RequestDescentWinds());
    EXPECT_EQ(winds.DescentForecast[0].alt, 33000);  // nothing entered: the cruise altitude
    EXPECT_EQ(winds.DescentForecast[0].spd, 0);
    winds.DescentForecast = {{{43100, 0, 0}, {3000, 200, 20}}};
    ASSERT_TRUE(RequestDescentWinds());
    EXPECT_EQ(winds.DescentForecast[0].dir, 270);
    EXPECT_EQ(winds.DescentForecast[1].spd, 20);
    for (const auto* leg : {&plan.active.legs[3], &plan.mod.legs[3]}) {
        EXPECT_EQ(leg->temp_alt, 430);
        EXPECT_EQ(leg->temp, -5);
    }
}

TEST_F(WeatherFiles, MissingOrEmptyFiles) {
    ASSERT_TRUE(RequestRouteWinds());
    winds.ActiveSkyFolder = "\\Elsewhere";
    EXPECT_FALSE(RequestRouteWinds());
    EXPECT_FALSE(RequestDescentWinds());
    EXPECT_EQ(winds.wx_station_cnt, 3);
    winds.ActiveSkyFolder = "\\Weather";
    plan.mod.leg_cnt = 0;  // no leg to fly
    EXPECT_TRUE(RequestRouteWinds());
    EXPECT_EQ(winds.wx_station_cnt, 3);
    plan.mod.leg_cnt = 1;
    EXPECT_TRUE(RequestRouteWinds());
    EXPECT_EQ(winds.wx_station_cnt, 1);
    PutStations("");
    PutSnapshot("");
    EXPECT_TRUE(RequestRouteWinds());
    EXPECT_EQ(winds.wx_station_cnt, 0);
    ApplyRouteWinds(1);
}

}  // namespace
