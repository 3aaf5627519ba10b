#include "fmc/performance/predictions.h"

#include <gtest/gtest.h>

#include "fmc/performance/profile.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/identity.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/state_groups.h"
#include "state/vnav.h"
#include "state/weights.h"

namespace {

class Predictions : public testing::Test {
  protected:
    Predictions() { ResetSystemState(); }
};

TEST_F(Predictions, EconomySpeedsFollowTheirTables) {
    const struct {
        double weight;
        int index;
        double climb;
    } kClimb[] = {
        {200000, 0, 288},  {200000, 50, 292},  {220000, 100, 298}, {300000, 200, 316}, {360000, 340, 343},
        {100000, -1, 288}, {360000, 999, 343}, {330000, 100, 313}, {600000, 340, 350}, {310000, 0, 298},
    };
    for (const auto& test : kClimb) {
        weights.gross_weight = test.weight;
        EXPECT_EQ(EconClimbSpeed(test.index), test.climb) << test.weight << " " << test.index;
    }
    weights.gross_weight = 200000;
    EXPECT_EQ(EconDescentSpeed(0), 282);
    EXPECT_EQ(EconDescentSpeed(80), 289);   // between 287 and 290: 288.5
    EXPECT_EQ(EconDescentSpeed(999), 290);  // held at 119: 290.25
    weights.gross_weight = 900000;
    EXPECT_EQ(EconDescentSpeed(20), 311);
}

TEST_F(Predictions, ClimbAndDescentSpeedsRiseWithWeightAndIndex) {
    for (double weight = 180000; weight < 580000; weight += 7000)
        for (int index = 0; index < 400; index += 10) {
            weights.gross_weight = weight;
            const double climb = EconClimbSpeed(index), descent = EconDescentSpeed(index);
            EXPECT_LE(climb, EconClimbSpeed(index + 10));
            EXPECT_LE(descent, EconDescentSpeed(index + 10));
            weights.gross_weight = weight + 10000;
            EXPECT_LE(climb, EconClimbSpeed(index));
            EXPECT_LE(descent, EconDescentSpeed(index));
        }
}

TEST_F(Predictions, CruiseMachRisesWithIndexHeightAndWeight) {
    for (double weight = 180000; weight < 560000; weight += 7000)
        for (double altitude = 5000; altitude < 46000; altitude += 1300)
            for (const int index : {0, 149, 150, 999, kLongRangeCruise}) {
                weights.gross_weight = weight;
                const double mach = EconCruiseMach(index, altitude);
                EXPECT_GE(mach, 0.363);
                EXPECT_LE(mach, 0.89);
                EXPECT_LE(mach, EconCruiseMach(index, altitude + 1000) + 1e-12);
                EXPECT_GE(EconCruiseMach(150, altitude), EconCruiseMach(0, altitude));
                EXPECT_GE(EconCruiseMach(0, altitude), EconCruiseMach(kLongRangeCruise, altitude));
                weights.gross_weight = weight + 10000;
                EXPECT_LE(mach, EconCruiseMach(index, altitude) + 1e-12);
            }
}

TEST_F(Predictions, LimitsAndFactorsAreThoseOfTheAircraft) {
    weights.gross_weight = 500000;
    EXPECT_EQ(MaxAltitude(), 377);
    weights.gross_weight = 400000;
    EXPECT_EQ(MaxAltitude(), 418);
    identity.aircraft_model = "900-10";
    EXPECT_EQ(MaxAltitude(), 411);
    identity.aircraft_model = "900-8";
    weights.gross_weight = 250000;
    EXPECT_EQ(MaxAltitude(), 431);
    const struct {
        int index;
        double factor;
    } kFactors[] = {{-1, 0},      {0, -0.03},   {5, -0.02645}, {50, 0.0055},
                    {100, 0.041}, {999, 0.112}, {5000, 0.112}};
    for (const auto& test : kFactors) {
        perf.cost_index = test.index;
        EXPECT_NEAR(PerfFactor(), test.factor, 1e-9) << test.index;
    }
    EXPECT_NEAR(IasToMach(280, 30000), 0.7317, 1e-4);
    EXPECT_NEAR(IasToMach(250, 0), 250 / 661.48, 1e-3);  // sea level: the speed of sound is 661.48 kt
    EXPECT_EQ(PlanningTas(300, 20000), 390);
}

TEST_F(Predictions, ClimbTakesTheNearestRowAndWeight) {
    EXPECT_EQ(ClimbRate(400000, 10000).rate, 2500);
    EXPECT_EQ(ClimbRate(400000, 10000).fuel_flow, 28300);
    EXPECT_EQ(ClimbRate(350000, 7500).rate, 4200);  // ties go to the first
    EXPECT_EQ(ClimbRate(900000, 90000).rate, 600);
    cfg.RocTest = 0;
    EXPECT_EQ(ClimbRate(400000, 10000).rate, 3300);
}

TEST_F(Predictions, CostIndexRowsSpareSpeedsSetByHand) {
    plan.mod.selected.climb_mach_manual = 1;
    ApplyCostIndexRow(true, 155);
    EXPECT_EQ(perf.speeds.climb_ias, 332);
    EXPECT_EQ(perf.speeds.climb_mach, 0);
    EXPECT_EQ(perf.speeds.descent_mach, 0.843);
    ApplyCostIndexRow(false, 40);
    EXPECT_EQ(plan.mod.entries.speeds.cruise_mach, 0.830);
    EXPECT_EQ(perf.speeds.cruise_mach, 0.853);
    ApplyCostIndexRow(true, 41);
    EXPECT_EQ(perf.speeds.climb_ias, 332);
}

TEST_F(Predictions, DistancesPassOverWhatIsNotFlown) {
    const struct {
        const char *ident, *via;
        double lat;
    } kLegs[] = {{"ORIG", "", 39},
                 {"ALPHA", "", 40},
                 {"DISCO", "", 0},
                 {"BRAVO", "", 41},
                 {"CHARL", "MISSED APPR", 60},
                 {"CHARL", "HOLD", 60},  // that ends the missed approach
                 {"DEST", "", 42}};
    for (const auto& leg : kLegs) {
        plan.active.legs[plan.active.leg_cnt].ident = leg.ident;
        plan.active.legs[plan.active.leg_cnt].via = leg.via;
        plan.active.legs[plan.active.leg_cnt].via_type = "APPR";
        plan.active.legs[plan.active.leg_cnt++].lat = leg.lat;
    }
    --plan.active.leg_cnt;
    sim.plane_lat = 39.5;
    sim.mgvar = 3;
    ComputeDistances();
    EXPECT_EQ(predictions.dist_to_dest, 0);  // no plan yet
    plan.active.stpos = 1;
    vnav.toc_lat = 39.75;
    vnav.toc_stpos = 0;
    vnav.tod_lat = 41.5;
    vnav.tod_stpos = 3;
    ComputeDistances();
    EXPECT_NEAR(predictions.dist_to_dest, 150, 1e-6);
    EXPECT_NEAR(predictions.dist_to_toc, 15, 1e-6);
    EXPECT_NEAR(predictions.dist_to_tod, 120, 1e-6);
    EXPECT_NEAR(predictions.dest_brg, 357, 1e-6);
    vnav.toc_lat = 39.4;  // the climb takes longer than planned
    ComputeDistances();
    EXPECT_EQ(predictions.dist_to_toc, 0);
}

// A route along a meridian, sixty miles to the degree: 300 kt and 280 kt make 367.5 and 343 kt at half of
// 30000 ft, and the path falls 1400 ft a minute, 244.9 ft a mile.
class Profile : public Predictions {
  protected:
    Profile() {
        const struct {
            const char *ident, *type;
            double lat;
        } kLegs[] = {{"ORIG", "APT", 40},  {"AAA", "INT", 41},    {"BBB", "INT", 43},   {"CCC", "INT", 45},
                     {"DDD", "INT", 46.5}, {"DEST", "APT", 47.5}, {"MISS", "INT", 47.8}};
        for (const auto& leg : kLegs) {
            FlightPlanLeg& to = plan.active.legs[plan.active.leg_cnt++];
            to.ident = leg.ident;
            to.type = leg.type;
            to.lat = leg.lat;
            if (to.type == "APT") to.alt = 0;
        }
        plan.active.legs[6].via = "MISSED APPR";
        --plan.active.leg_cnt;
        plan.active.stpos = 1;
        cfg.RocTest = 0;
        perf.speeds.climb_ias = 300;
        perf.speeds.cruise_ias = 290;
        perf.speeds.descent_ias = 280;
        weights.gross_weight = 450000;
        perf.cruise_alt = 30000;
    }
    static const FlightPlanLeg& Leg(int index) { return plan.active.legs[index]; }
};

TEST_F(Profile, PlacesTopsAltitudesSpeedsAndBurns) {
    ComputeProfile(30000, 0);
    // AAA would be passed at 32320 ft, 2320 / 3300 minutes late.
    EXPECT_NEAR(predictions.dist_to_toc, 60 - 2320 / 3300.0 * 6.125, 1e-3);
    EXPECT_NEAR(vnav.toc_lat, 40 + predictions.dist_to_toc / 60, 1e-6);
    EXPECT_EQ(vnav.toc_stpos, 0);
    EXPECT_EQ(predictions.tod_rod, 1400);
    EXPECT_EQ(Leg(4).alt, 14690);  // 60 nm out
    EXPECT_NEAR(predictions.dist_to_tod,
                300 + (14690 + 90 * 1400 / (343 / 60.0) - 30000) / (1400 / (343 / 60.0)), 1e-3);
    EXPECT_EQ(vnav.tod_stpos, 3);
    for (const int cruise : {1, 2, 3}) {
        EXPECT_EQ(Leg(cruise).alt, 30000) << cruise;
        EXPECT_EQ(Leg(cruise).ias_restr, 290) << cruise;
    }
    EXPECT_EQ(Leg(4).ias_restr, 280);
    EXPECT_EQ(Leg(5).ias_restr, 240);  // below the transition
    EXPECT_EQ(Leg(5).alt, 0);
    EXPECT_EQ(predictions.clb_burn, 25200 * 0.9);
    EXPECT_NEAR(predictions.crz_burn, 11500 * 1.1, 1e-6);
    EXPECT_EQ(predictions.des_burn, (4000 + 5800) / 2);  // 22345 ft and 7345 ft in the mean
    EXPECT_NEAR(predictions.des_burn_per_nm, 4900 / 343.0, 1e-9);
    EXPECT_EQ(cdu[0].CduMessageCount, 0);
}

TEST_F(Profile, TakesTheWindOfEveryLeg) {
    for (int leg = 0; leg <= 4; ++leg) plan.active.legs[leg].wind[0] = {30000, 180, 50};
    ComputeProfile(30000, 0);
    for (int leg = 0; leg <= 4; ++leg) EXPECT_NEAR(Leg(leg).along_wind, 50, 1e-9) << leg;
    EXPECT_EQ(Leg(1).alt, 28450);  // 60 nm at 417.5 kt and 3300 ft a minute
}

TEST_F(Profile, ConstraintsBendIt) {
    plan.active.legs[4].restr_code = kAltitudeRestr;
    plan.active.legs[4].restr_type = kAtOrBelow;
    plan.active.legs[4].alt_restr = 10000;
    ComputeProfile(30000, 0);
    EXPECT_EQ(Leg(4).alt, 10000);
    EXPECT_EQ(Leg(4).ias_restr, 240);
    EXPECT_NEAR(predictions.dist_to_tod, 390 - 20000 / (1400 / (343 / 60.0)), 1e-3);
    // A wide window holds the path where it is, a narrow one clips it.
    plan.active.legs[4].restr_type = kBetween;
    plan.active.legs[4].alt_restr = 0;
    plan.active.legs[4].block_above = 11000;
    plan.active.legs[4].block_below = 12000;
    ComputeProfile(30000, 0);
    EXPECT_EQ(Leg(4).alt, 12000);
    // In the climb the first fix is held low, and is what is to be crossed.
    plan.active.legs[1].restr_code = kAltitudeRestr;
    plan.active.legs[1].restr_type = kAt;
    plan.active.legs[1].alt_restr = 7000;
    ComputeProfile(30000, 0);
    EXPECT_EQ(Leg(1).alt, 7000);
    EXPECT_EQ(vnav.cross_at_elev, 7000);
    EXPECT_EQ(Leg(1).ias_restr, 250);
    EXPECT_GT(predictions.dist_to_toc, 60 + 23000 / 3300.0 * 6.125 - 0.1);
}

TEST_F(Profile, TooShortARouteIsTold) {
    plan.active.legs[2] = plan.active.legs[5];
    plan.active.legs[2].lat = 42;
    plan.active.leg_cnt = 2;
    ComputeProfile(41000, 0);
    EXPECT_EQ(cdu[0].CduMessages[1].title, "UNABLE CRZ ALT");
    EXPECT_EQ(cdu[1].CduMessageCount, 1);
    perf.cruise_alt = 0;
    plan.active.leg_cnt = 0;
    ComputeProfile(30000, 0);  // nothing to do
    EXPECT_EQ(Leg(2).alt, 0);
}

}  // namespace
