#include "fmc/winds.h"

#include <gtest/gtest.h>

#include "state/sim.h"
#include "state/winds.h"
#include "support/fake_host.h"

namespace {

// Due north along the Greenwich meridian: 1 flown to, 2 behind it.
void PlanNorth() {
    for (const int i : {0, 1, 2}) {
        plan.FlightPlan[i].ident = "FIX";
        plan.FlightPlan[i].lat = i;
        plan.FlightPlan[i].alt = 30000;
    }
    plan.fp_cnt = 2;
    plan.stpos = 1;
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
        plan.FlightPlan[row.prev_leg].wind = row.levels;
        EXPECT_NEAR(LegWind(row.prev_leg, row.leg), row.wind, 1e-9);
    }
}

TEST(Winds, TheForecastOfTheDescentStandsBeforeTheLegs) {
    FakeHost host;
    PlanNorth();
    plan.FlightPlan[1].wind = {{{30000, 180, 50}}};
    EXPECT_NEAR(DescentWind(2), 50, 1e-9);
    plan.FlightPlan[2].alt = 5000;
    winds.DescentForecast = {{{31000, 180, 90}, {6000, 0, 15}}};
    EXPECT_NEAR(DescentWind(2), -15, 1e-9);
}

}  // namespace
