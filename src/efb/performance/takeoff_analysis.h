#pragma once

#include <string>
#include <string_view>

/// Reads the analysis file of a variant ("900-8", "900-9", "900-10"; another counts as the first): at most
/// 108 lines of ten numbers, a line read up to 999 characters, what is no number being 0. A missing file
/// leaves the table without rows. Builds the variant's own columns for wind and temperature.
void LoadPerformanceTable(std::string_view variant);

struct TakeoffConditions {
    double runway_length = 0;  // ft
    double elevation = 0;      // ft
    double oat = 0;            // degrees Celsius
    double weight = 0;         // lb
    double tail_wind = 0;      // kt, below 0 = from ahead
    bool wet = false;
};

constexpr double kNoSelTemp = -99;

struct TakeoffLimits {
    double sel_temp = kNoSelTemp;  // assumed temperature, degrees Celsius
    double limit_weight = 0;       // lb, of the dry runway in still air
    double max_weight = 0;         // lb, to the hundred
    std::string rating;            // "TO", "TO1", "TO2"
    int flaps = 5;
};

/// The limits of a take-off by the loaded table: its records nearest to the conditions, in the order of the
/// manufacturer's method (docs/takeoff_model.md tells what stands in the table). Rewrites the weight
/// fractions of records 2 to 5.
TakeoffLimits AnalyseTakeoff(const TakeoffConditions& at);
