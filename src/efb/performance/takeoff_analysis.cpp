#include "efb/performance/takeoff_analysis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>

#include "base/numbers.h"
#include "base/text_fields.h"
#include "platform/files.h"
#include "state/tablet_performance.h"

namespace {

enum Column {
    kWeight,
    kTempOfWeight,
    kLength,
    kChangeByLength,
    kElevation,
    kChangeByElevation,
    kFlapKey,
    kFlapOfKey,
    kFraction,
    kFlapOfFraction,
    kWind,
    kChangeByWind,
    kTemperature,
    kChangeByTemperature,
};

constexpr int kFirstFraction = 2;

// What sets the variants apart: the base weight, the weight from which the heat takes its share, and the
// steps of the columns that the file doesn't have.
struct VariantTuning {
    const char* variant;
    double base_weight;  // lb
    double hot_weight;   // lb at 30 degrees
    double hot_cap;      // lb
    std::array<double, 4> fractions;
    double by_wind;                        // lb for each knot from behind
    double temperature_step;               // degrees from one row to the next
    double by_temperature;                 // lb for each row
    std::array<int, 3> full_thrust_flaps;  // settings that allow no reduced thrust; 0 = none
};
constexpr VariantTuning kTunings[] = {
    {"900-8", 502500, 503500, 560500, {0.97, 0.975, 0.99, 0.994}, -1500, 1, -2000, {0, 0, 0}},
    {"900-9", 560500, 560500, 560500, {0.97, 0.98, 0.99, 0.994}, -1600, 2, -3600, {15, 17, 18}},
    {"900-10", 560500, 560500, 560500, {0.97, 0.98, 0.99, 0.994}, -1700, 2, -3400, {10, 15, 17}},
};

const VariantTuning& TuningOf(std::string_view variant) {
    for (const VariantTuning& tuning : kTunings)
        if (variant == tuning.variant) return tuning;
    return kTunings[0];
}

void BuildOwnColumns(const VariantTuning& tuning) {
    constexpr int kWindRows = 17, kTemperatureRows = 21;
    constexpr double kColdest = -30, kFirstWarm = 15;
    TakeoffAnalysis& table = tablet_performance.analysis;
    for (int row = 1; row <= kWindRows; ++row) {
        table.rows[static_cast<std::size_t>(row)][kWind] = row - 1;
        table.rows[static_cast<std::size_t>(row)][kChangeByWind] = (row - 1) * tuning.by_wind;
    }
    for (int row = 1; row <= kTemperatureRows; ++row) {
        const int warm = std::max(row - 2, 0);
        table.rows[static_cast<std::size_t>(row)][kTemperature] =
            row == 1 ? kColdest : kFirstWarm + warm * tuning.temperature_step;
        table.rows[static_cast<std::size_t>(row)][kChangeByTemperature] = warm * tuning.by_temperature;
    }
    table.analysis_wind_rows = kWindRows;
    table.analysis_temperature_rows = kTemperatureRows;
}

// The row whose axis value differs least; 0, whose values are all 0, when there is none.
int NearestRow(Column axis, double value) {
    const TakeoffAnalysis& table = tablet_performance.analysis;
    const int count = axis >= kTemperature ? table.analysis_temperature_rows
                      : axis >= kWind      ? table.analysis_wind_rows
                                           : table.analysis_rows;
    int closest = 0;
    double least = 0;
    for (int row = 1; row <= std::min(count, kAnalysisRows); ++row) {
        const double off = std::fabs(table.rows[static_cast<std::size_t>(row)][axis] - value);
        if (closest != 0 && !(off < least)) continue;
        closest = row;
        least = off;
    }
    return closest;
}

double Cell(int row, Column column) {
    return tablet_performance.analysis.rows[static_cast<std::size_t>(row)][column];
}

double Lookup(Column axis, double value, Column column) {
    return Cell(NearestRow(axis, value), column);
}

constexpr double kNone = 999999;

void StoreFractions(const VariantTuning& tuning, double limit) {
    TakeoffAnalysis& table = tablet_performance.analysis;
    for (std::size_t i = 0; i < tuning.fractions.size(); ++i) {
        const int row = kFirstFraction + static_cast<int>(i);
        if (row <= table.analysis_rows)
            table.rows[static_cast<std::size_t>(row)][kFraction] = tuning.fractions[i] * limit;
    }
}

double TemperatureLimit(const VariantTuning& tuning, double oat) {
    constexpr double kFlatRated = 30, kPoundsPerDegree = 3500;
    if (!(oat > kFlatRated)) return kNone;
    return std::min(tuning.hot_cap, tuning.hot_weight - (oat - kFlatRated) * kPoundsPerDegree);
}

// What a short runway leaves of the assumed temperature.
std::optional<double> LengthTerm(double length, double assumed) {
    if (length <= 3000) return std::nullopt;
    if (length <= 4000) return assumed - 18;
    if (length <= 5000) return assumed - 14;
    if (length <= 5500) return assumed - 18;
    return 0;
}

double AssumedTemperature(const TakeoffConditions& at, double limit, double change_by_elevation) {
    constexpr double kLight = 0.8, kVeryLight = 0.78, kHeavy = 0.95, kWetLoss = 3;
    const double of_weight = Lookup(kWeight, at.weight, kTempOfWeight);
    const double assumed = of_weight >= at.oat ? of_weight : kNone;
    const bool high = kLight * limit > at.weight && at.elevation > 8500;
    const double of_field =
        Lookup(kWeight, high ? assumed : at.weight + 2 * change_by_elevation, kTempOfWeight);
    double of_elevation = assumed;
    if (at.elevation < 9000)
        of_elevation = 0;
    else if (at.elevation < 10000)
        of_elevation = Lookup(kWeight, 1.15 * at.weight, kTempOfWeight);
    if (kVeryLight * limit > at.weight) of_elevation = assumed;
    const double of_ratio = at.weight > kHeavy * limit ? 0 : assumed;
    const double least = std::min({assumed, of_field, of_ratio, of_elevation});
    return at.wet ? least - kWetLoss : least;
}

double SelectedTemperature(const TakeoffConditions& at, double assumed) {
    const double selected = std::max(assumed, 0.0);
    const auto of_length = LengthTerm(at.runway_length, assumed);
    const bool bound = at.tail_wind > 0 && of_length && *of_length > 0;
    const double temperature = bound ? std::min(selected, *of_length) : selected;
    return temperature > 0 && temperature < kNone / 2 ? temperature : kNoSelTemp;
}

// High flap settings lift a little more than the table has.
double GrowthOfFlaps(int flaps) {
    switch (flaps) {
        case 15:
            return 1.0022;
        case 17:
            return 1.0025;
        case 18:
            return 1.0027;
        case 20:
            return 1.0029;
        default:
            return 1;
    }
}

double MaximumWeight(const VariantTuning& tuning, const TakeoffConditions& at, double limit, bool near_limit,
                     int flaps_of_fraction) {
    constexpr double kWetLoss = 8500, kShortRunway = 5000, kHundred = 100;
    constexpr int kHighFlaps = 11;
    double weight = limit;
    if (at.wet) weight -= kWetLoss;
    if (at.tail_wind > 0) weight += Lookup(kWind, at.tail_wind, kChangeByWind);
    if (at.wet) weight = std::max(weight, at.weight);
    if (at.runway_length >= kShortRunway) weight += Lookup(kTemperature, at.oat, kChangeByTemperature);
    if (near_limit) weight *= GrowthOfFlaps(flaps_of_fraction);
    if (!near_limit || flaps_of_fraction <= kHighFlaps) weight = std::min(weight, tuning.base_weight);
    return std::round(weight / kHundred) * kHundred;
}

int Rating(const VariantTuning& tuning, const TakeoffConditions& at, double limit, int flaps) {
    constexpr double kSecond = 0.78, kFirst = 0.9, kStrongTailWind = 6;
    int rating = kSecond * limit > at.weight ? 2 : kFirst * limit > at.weight ? 1 : 0;
    for (const int setting : tuning.full_thrust_flaps)
        if (setting != 0 && setting == flaps) rating = 0;
    if (at.tail_wind > 0 && rating > 0) --rating;
    return at.tail_wind > kStrongTailWind ? 0 : rating;
}

}  // namespace

void LoadPerformanceTable(std::string_view variant) {
    constexpr std::size_t kLineBound = 999;
    constexpr int kFileColumns = 10;
    TakeoffAnalysis& table = tablet_performance.analysis;
    table = {};
    table.analysis_variant = variant;
    const VariantTuning& tuning = TuningOf(variant);
    BuildOwnColumns(tuning);
    // The file's name ends like the variant's: "900-8" reads "-8".
    const std::string name = tuning.variant;
    const auto file =
        ReadFile("\\Velarion\\TZ900\\Navdata\\Airport_Analysis" + name.substr(name.find('-')) + ".txt");
    if (!file) return;
    std::string_view rest = file->Text();
    while (table.analysis_rows < kAnalysisRows) {
        auto line = NextBoundedLine(rest, kLineBound);
        if (!line) return;
        std::string_view field = NextField(*line);
        if (field.empty()) continue;
        auto& row = table.rows[static_cast<std::size_t>(++table.analysis_rows)];
        for (int column = 0; column < kFileColumns; ++column) {
            row[static_cast<std::size_t>(column)] = LeadingDouble(field);
            field = NextField(*line);
        }
    }
}

TakeoffLimits AnalyseTakeoff(const TakeoffConditions& at) {
    constexpr double kNearLimit = 0.97, kLight = 0.8, kHighField = 8500, kHighestWithFlaps = 10000;
    const VariantTuning& tuning = TuningOf(tablet_performance.analysis.analysis_variant);
    const int of_elevation = NearestRow(kElevation, at.elevation);
    const double change_by_elevation = Cell(of_elevation, kChangeByElevation);
    const double field_limit =
        tuning.base_weight + change_by_elevation + Lookup(kLength, at.runway_length, kChangeByLength);
    // A table without rows says nothing of runways.
    const double limit = tablet_performance.analysis.analysis_rows == 0
                             ? TemperatureLimit(tuning, at.oat)
                             : std::min(TemperatureLimit(tuning, at.oat), field_limit);
    StoreFractions(tuning, limit);

    const bool near_limit = at.weight > kNearLimit * limit;
    const int flaps_of_fraction =
        at.elevation > kHighestWithFlaps ? 5 : WholeNumber(Lookup(kFraction, at.weight, kFlapOfFraction));
    TakeoffLimits result;
    result.limit_weight = limit;
    result.sel_temp = SelectedTemperature(at, AssumedTemperature(at, limit, change_by_elevation));
    result.max_weight = MaximumWeight(tuning, at, limit, near_limit, flaps_of_fraction);
    if (near_limit)
        result.flaps = flaps_of_fraction;
    else if (at.elevation > kHighField || kLight * limit <= at.weight)
        result.flaps = WholeNumber(Lookup(kFlapKey, Cell(of_elevation, kFlapKey), kFlapOfKey));
    const int rating = Rating(tuning, at, limit, result.flaps);
    result.rating = rating == 2 ? "TO2" : rating == 1 ? "TO1" : "TO";
    return result;
}
