#include "fmc/performance/approach_speeds.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "fmc/performance/predictions.h"
#include "state/takeoff_approach.h"

namespace {

struct WeightSpeed {
    double weight;  // lb
    double speed;   // kt
};
using SpeedTable = std::array<WeightSpeed, 28>;

// This system's own tuning, in line with its flap speeds by weight.
constexpr SpeedTable kVref30 = {{
    {240000, 119}, {250000, 120}, {260000, 120}, {270000, 122}, {280000, 124}, {290000, 126}, {300000, 128},
    {310000, 130}, {320000, 132}, {330000, 134}, {340000, 136}, {350000, 138}, {360000, 140}, {370000, 142},
    {380000, 143}, {390000, 145}, {400000, 147}, {410000, 149}, {420000, 151}, {430000, 153}, {440000, 155},
    {450000, 157}, {460000, 158}, {470000, 160}, {480000, 162}, {490000, 164}, {500000, 165}, {510000, 167},
}};
constexpr SpeedTable kVref25 = {{
    {240000, 124}, {250000, 124}, {260000, 124}, {270000, 125}, {280000, 126}, {290000, 129}, {300000, 131},
    {310000, 133}, {320000, 135}, {330000, 137}, {340000, 139}, {350000, 142}, {360000, 144}, {370000, 145},
    {380000, 146}, {390000, 148}, {400000, 150}, {410000, 152}, {420000, 154}, {430000, 156}, {440000, 158},
    {450000, 160}, {460000, 161}, {470000, 163}, {480000, 165}, {490000, 167}, {500000, 169}, {510000, 171},
}};
constexpr SpeedTable kVref20 = {{
    {240000, 129}, {250000, 129}, {260000, 129}, {270000, 130}, {280000, 131}, {290000, 134}, {300000, 136},
    {310000, 138}, {320000, 140}, {330000, 142}, {340000, 144}, {350000, 147}, {360000, 149}, {370000, 150},
    {380000, 151}, {390000, 153}, {400000, 155}, {410000, 157}, {420000, 159}, {430000, 161}, {440000, 163},
    {450000, 165}, {460000, 166}, {470000, 168}, {480000, 170}, {490000, 172}, {500000, 174}, {510000, 176},
}};

double SpeedFor(const SpeedTable& table, double weight) {
    return std::ranges::min_element(
               table, {}, [weight](const WeightSpeed& row) { return std::fabs(row.weight - weight); })
        ->speed;
}

void FillEmpty(double& speed, int flaps, double weight, LandingWeight limit) {
    if (speed == 0) speed = ApproachSpeed(flaps, weight, limit);
}

}  // namespace

double ApproachSpeed(int flaps, double weight, LandingWeight limit) {
    constexpr double kHeaviestLanding = 380000;
    if (flaps == 20) return SpeedFor(kVref20, weight);
    if (flaps == 25) return SpeedFor(kVref25, weight);
    return SpeedFor(kVref30, limit == LandingWeight::kLimited ? std::min(weight, kHeaviestLanding) : weight);
}

void FillApproachSpeeds(LandingWeight limit) {
    TakeoffApproachState& approach = takeoff_approach;
    const double weight = approach.ApproachWeightEntry != 0 ? approach.ApproachWeightEntry : GrossWeight();
    FillEmpty(approach.Vref30, 30, weight, limit);
    FillEmpty(approach.Vref25, 25, weight, limit);
    FillEmpty(approach.Vref20, 20, weight, limit);
}
