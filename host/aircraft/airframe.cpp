#include "host/aircraft/airframe.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace host {
namespace {

struct Detent {
    double handle, degrees;
};
constexpr Detent kSevenDetents[] = {{0, 0},     {2340, 1},   {4681, 5},  {7021, 15},
                                    {9362, 20}, {11702, 25}, {14043, 30}};
constexpr Detent kTenDetents[] = {{0, 0},     {1820, 1},   {3640, 5},   {5461, 10},  {7281, 15},
                                  {9102, 17}, {10922, 18}, {12743, 20}, {14563, 25}, {16384, 30}};

std::span<const Detent> DetentsOf(const Airframe& airframe) {
    if (airframe.name == "900-8") return kSevenDetents;
    return kTenDetents;
}

// Straight lines through a table whose rows rise in `from`; held at its ends.
template <class Row>
double Between(std::span<const Row> rows, double x, double Row::*from, double Row::*to) {
    if (x <= rows.front().*from) return rows.front().*to;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const Row &low = rows[i - 1], &high = rows[i];
        if (x < high.*from)
            return low.*to + (high.*to - low.*to) * (x - low.*from) / (high.*from - low.*from);
    }
    return rows.back().*to;
}

struct FlapRow {
    double degrees, max_lift, drag, incidence;
};
constexpr FlapRow kFlapRows[] = {{0, 0, 0, 0},           {1, 0.16, 0.004, 0.3},  {5, 0.26, 0.010, 1},
                                 {15, 0.63, 0.022, 2.5}, {20, 0.75, 0.030, 3.3}, {25, 1.10, 0.050, 4.4},
                                 {30, 1.18, 0.062, 5}};

}  // namespace

Airframe AirframeOf(std::string_view sim, std::string_view engines) {
    struct Row {
        Airframe with_ge;
        EngineMake rr;
    };
    static constexpr Row kRows[] = {
        {{"900-10", 298700, {"GENX-1B76", 342000, 1.022, false}}, {"TRENT 1000", 338000, 1.033, true}},
        {{"900-9", 284000, {"GENX-1B70", 322000, 1.022, false}}, {"TRENT 1000", 325000, 1.033, true}},
        {{"900-8", 264500, {"GENX-1B67", 305000, 1.022, false}}, {"TRENT 1000", 310000, 1.033, true}},
    };
    const Row* row = std::find_if(std::begin(kRows), std::end(kRows) - 1, [&](const Row& candidate) {
        return sim.find(candidate.with_ge.name) != std::string_view::npos;
    });
    Airframe airframe = row->with_ge;
    if (engines == "rr") airframe.engine = row->rr;
    return airframe;
}

double FlapAngleOfHandle(const Airframe& airframe, double handle) {
    return Between(DetentsOf(airframe), handle, &Detent::handle, &Detent::degrees);
}

double HandleOfFlapAngle(const Airframe& airframe, double degrees) {
    return std::round(Between(DetentsOf(airframe), degrees, &Detent::degrees, &Detent::handle));
}

std::vector<double> FlapStops(const Airframe& airframe) {
    std::vector<double> stops;
    for (const Detent& row : DetentsOf(airframe)) stops.push_back(row.degrees);
    return stops;
}

int FlapDetent(const Airframe& airframe, double degrees) {
    constexpr double kReached = 0.05;
    int detent = -1;
    for (const Detent& row : DetentsOf(airframe)) detent += row.degrees <= degrees + kReached ? 1 : 0;
    return std::max(detent, 0);
}

FlapEffect EffectOfFlaps(double degrees) {
    const std::span<const FlapRow> rows = kFlapRows;
    return {Between(rows, degrees, &FlapRow::degrees, &FlapRow::max_lift),
            Between(rows, degrees, &FlapRow::degrees, &FlapRow::drag),
            Between(rows, degrees, &FlapRow::degrees, &FlapRow::incidence)};
}

double SlatAngle(double flap_degrees) {
    constexpr double kMiddle = 29.2, kOut = 32.4, kTakeoffFlaps = 20, kLandingFlaps = 25;
    return kMiddle * std::clamp(flap_degrees, 0.0, 1.0) +
           (kOut - kMiddle) *
               std::clamp((flap_degrees - kTakeoffFlaps) / (kLandingFlaps - kTakeoffFlaps), 0.0, 1.0);
}

}  // namespace host
