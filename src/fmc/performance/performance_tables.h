#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "state/planned_speeds.h"

// The aircraft's built-in performance, the same for all variants. Feet, pounds, knots, pounds an hour, feet a
// minute.

constexpr std::size_t kClimbWeights = 4;

struct ClimbPerfRow {
    double altitude;
    std::array<double, kClimbWeights> rate;  // by kClimbPerfWeights
    double speed, fuel_flow;
};
constexpr std::array<double, kClimbWeights> kClimbPerfWeights = {300000, 400000, 450000, 500000};
constexpr std::array<ClimbPerfRow, 7> kClimbPerf = {{
    {5000, {4200, 4100, 3000, 3400}, 265, 32500},
    {10000, {3200, 2500, 2000, 1800}, 285, 28300},
    {15000, {3200, 2100, 2000, 1900}, 340, 25200},
    {20000, {3000, 1800, 1500, 1400}, 370, 22000},
    {25000, {2100, 1400, 1100, 900}, 400, 19300},
    {30000, {2100, 1500, 900, 800}, 430, 16600},
    {35000, {900, 700, 650, 600}, 460, 14800},
}};

constexpr std::size_t kCruisePerfWeightCount = 4;

struct CruisePerfRow {
    double altitude, speed;
    std::array<double, kCruisePerfWeightCount> fuel_flow;  // by kCruisePerfWeights
};
constexpr std::array<double, kCruisePerfWeightCount> kCruisePerfWeights = {350000, 400000, 450000, 500000};
constexpr std::array<CruisePerfRow, 3> kCruisePerf = {{
    {30000, 434, {10900, 11200, 11500, 11800}},
    {35000, 435, {10200, 10400, 10800, 11300}},
    {40000, 405, {9100, 9200, 9400, 9600}},
}};

struct DescentPerfRow {
    double altitude, fuel_flow, speed;
};
constexpr std::array<DescentPerfRow, 7> kDescentPerf = {{
    {30000, 3800, 429},
    {25000, 4000, 428},
    {20000, 4000, 418},
    {15000, 4200, 375},
    {10000, 4500, 297},
    {7000, 5800, 211},
    {5000, 8000, 211},
}};

/// The place of the value nearest to the one wanted, the first of two as near.
template <std::size_t N>
constexpr std::size_t NearestPlace(const std::array<double, N>& values, double wanted) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < N; ++i)
        if (std::fabs(values[i] - wanted) < std::fabs(values[best] - wanted)) best = i;
    return best;
}

/// The row nearest to an altitude, the first of two as near.
template <class Row, std::size_t N>
constexpr const Row& NearestRow(const std::array<Row, N>& rows, double altitude) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < N; ++i)
        if (std::fabs(rows[i].altitude - altitude) < std::fabs(rows[best].altitude - altitude)) best = i;
    return rows[best];
}

struct WeightAltitude {
    double altitude, weight;
};
/// The highest cruise altitude up to each gross weight; the rows that would follow all read the last
/// altitude.
constexpr std::array<WeightAltitude, 11> kAltitudeByWeight = {{
    {32600, 551155.7},
    {33500, 529109.5},
    {34400, 507063.3},
    {35300, 485017.0},
    {36300, 462970.8},
    {37300, 440924.6},
    {38400, 418878.3},
    {39500, 396832.1},
    {40700, 374785.9},
    {42000, 352739.7},
    {43100, 330693.4},
}};

struct CostIndexRow {
    int cost_index;
    PlannedSpeeds speeds;
};
constexpr std::array<CostIndexRow, 21> kCostIndexTable = {{
    {0, 300, 0.809, 300, 0.812, 290, 0.806},   {10, 302, 0.814, 302, 0.817, 292, 0.811},
    {20, 304, 0.819, 304, 0.822, 294, 0.816},  {30, 307, 0.824, 307, 0.826, 295, 0.820},
    {40, 313, 0.828, 313, 0.830, 297, 0.822},  {50, 316, 0.831, 316, 0.832, 299, 0.825},
    {60, 317, 0.835, 317, 0.836, 301, 0.829},  {70, 319, 0.837, 319, 0.838, 303, 0.831},
    {80, 321, 0.840, 321, 0.841, 305, 0.833},  {90, 323, 0.843, 323, 0.844, 306, 0.835},
    {100, 324, 0.846, 324, 0.848, 308, 0.839}, {125, 326, 0.848, 326, 0.850, 310, 0.841},
    {130, 328, 0.849, 328, 0.850, 310, 0.841}, {150, 330, 0.852, 330, 0.853, 312, 0.843},
    {155, 332, 0.853, 332, 0.853, 312, 0.843}, {160, 334, 0.854, 334, 0.854, 313, 0.844},
    {175, 336, 0.856, 336, 0.856, 314, 0.845}, {200, 338, 0.858, 338, 0.859, 315, 0.846},
    {300, 340, 0.861, 340, 0.862, 317, 0.847}, {400, 343, 0.863, 343, 0.864, 318, 0.849},
    {999, 350, 0.868, 350, 0.869, 321, 0.851},
}};

/// A value by two quantities, linear between its rows and columns; outside it the edge holds.
template <std::size_t kRows, std::size_t kColumns>
struct GridTable {
    std::array<double, kRows> row_at;
    std::array<double, kColumns> column_at;
    std::array<std::array<double, kColumns>, kRows> value;

    double At(double row, double column) const {
        const auto [r, down] = Place(row_at, row);
        const auto [c, right] = Place(column_at, column);
        const auto along = [&, c = c, right = right](std::size_t i) {
            return std::lerp(value[i][c], value[i][c + 1], right);
        };
        return std::lerp(along(r), along(r + 1), down);
    }

  private:
    struct Cell {
        std::size_t index;
        double part;  // 0 to 1 within it
    };
    template <std::size_t N>
    static Cell Place(const std::array<double, N>& axis, double x) {
        std::size_t i = 0;
        while (i + 2 < N && x >= axis[i + 1]) ++i;
        return {i, std::clamp((x - axis[i]) / (axis[i + 1] - axis[i]), 0.0, 1.0)};
    }
};

/// Economy climb speed by gross weight and cost index.
constexpr GridTable<18, 5> kEconClimb = {
    {200000, 220000, 240000, 260000, 280000, 300000, 320000, 340000, 360000, 380000, 400000, 420000, 440000,
     460000, 480000, 500000, 520000, 540000},
    {0, 100, 200, 300, 340},
    {{{288, 296, 302, 317, 336},
      {290, 298, 305, 320, 336},
      {292, 301, 308, 323, 337},
      {293, 304, 311, 326, 338},
      {295, 306, 313, 328, 339},
      {297, 309, 316, 331, 340},
      {299, 312, 319, 334, 341},
      {300, 314, 321, 336, 342},
      {302, 317, 324, 339, 343},
      {304, 319, 326, 341, 344},
      {306, 321, 328, 342, 345},
      {307, 323, 330, 344, 346},
      {309, 325, 332, 345, 347},
      {311, 327, 334, 346, 347},
      {312, 329, 336, 347, 348},
      {314, 331, 338, 348, 349},
      {316, 333, 340, 349, 350},
      {317, 335, 342, 350, 350}}}};

/// Economy descent speed by gross weight and cost index.
constexpr GridTable<7, 5> kEconDescent = {{200000, 250000, 300000, 350000, 400000, 450000, 500000},
                                          {0, 20, 60, 100, 1000},
                                          {{{282, 284, 287, 290, 302},
                                            {287, 289, 292, 295, 308},
                                            {291, 293, 296, 299, 313},
                                            {296, 298, 301, 304, 318},
                                            {300, 302, 305, 308, 323},
                                            {305, 307, 310, 313, 328},
                                            {309, 311, 314, 317, 333}}}};

/// Cruise Mach by gross weight and altitude: cost indices below 150, those above, long range.
constexpr std::array<double, 6> kCruiseAltitudes = {10000, 20000, 30000, 35000, 39000, 43000};
constexpr std::array<double, 9> kCruiseWeights = {200000, 240000, 280000, 320000, 360000,
                                                  400000, 440000, 480000, 520000};
constexpr GridTable<9, 6> kCruiseMachLowIndex = {kCruiseWeights,
                                                 kCruiseAltitudes,
                                                 {{{0.440, 0.552, 0.704, 0.792, 0.832, 0.844},
                                                   {0.448, 0.562, 0.717, 0.800, 0.836, 0.846},
                                                   {0.456, 0.573, 0.730, 0.808, 0.840, 0.848},
                                                   {0.465, 0.584, 0.743, 0.816, 0.843, 0.849},
                                                   {0.474, 0.595, 0.756, 0.823, 0.846, 0.850},
                                                   {0.483, 0.606, 0.768, 0.829, 0.848, 0.850},
                                                   {0.492, 0.617, 0.779, 0.834, 0.849, 0.850},
                                                   {0.501, 0.628, 0.789, 0.838, 0.850, 0.850},
                                                   {0.510, 0.639, 0.798, 0.841, 0.850, 0.850}}}};
constexpr GridTable<9, 6> kCruiseMachHighIndex = {kCruiseWeights,
                                                  kCruiseAltitudes,
                                                  {{{0.520, 0.634, 0.778, 0.832, 0.850, 0.856},
                                                    {0.526, 0.642, 0.786, 0.836, 0.852, 0.857},
                                                    {0.533, 0.650, 0.794, 0.840, 0.854, 0.858},
                                                    {0.540, 0.658, 0.802, 0.844, 0.856, 0.859},
                                                    {0.547, 0.666, 0.809, 0.847, 0.857, 0.860},
                                                    {0.554, 0.674, 0.816, 0.850, 0.858, 0.860},
                                                    {0.561, 0.682, 0.822, 0.853, 0.859, 0.860},
                                                    {0.568, 0.690, 0.828, 0.855, 0.860, 0.860},
                                                    {0.575, 0.698, 0.833, 0.857, 0.860, 0.860}}}};
constexpr GridTable<9, 6> kCruiseMachLongRange = {kCruiseWeights,
                                                  kCruiseAltitudes,
                                                  {{{0.420, 0.524, 0.668, 0.756, 0.808, 0.834},
                                                    {0.431, 0.538, 0.685, 0.770, 0.817, 0.838},
                                                    {0.442, 0.552, 0.702, 0.784, 0.825, 0.841},
                                                    {0.453, 0.566, 0.719, 0.796, 0.832, 0.844},
                                                    {0.464, 0.580, 0.735, 0.806, 0.838, 0.846},
                                                    {0.475, 0.594, 0.750, 0.815, 0.842, 0.848},
                                                    {0.486, 0.607, 0.763, 0.823, 0.845, 0.849},
                                                    {0.497, 0.620, 0.775, 0.829, 0.847, 0.850},
                                                    {0.508, 0.632, 0.786, 0.834, 0.849, 0.850}}}};
