#include "cdu/words/typed_values.h"

#include "base/text.h"
#include "fmc/performance/predictions.h"
#include "state/cfg.h"

std::optional<std::pair<std::string_view, std::string_view>> SplitAtSlash(std::string_view text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string_view::npos) return {};
    return std::pair(text.substr(0, slash), text.substr(slash + 1));
}

std::optional<double> TypedNumber(std::string_view text, double low, double high) {
    if (!IsNumber(text) || text.find_first_of("0123456789") == std::string_view::npos) return {};
    const double value = LeadingDouble(text);
    if (value < low || value > high) return {};
    return value;
}

std::optional<int> TypedInteger(std::string_view text, int low, int high) {
    if (text.find('.') != std::string_view::npos || !IsNumber(text)) return {};
    const double value = LeadingDouble(text);
    if (value < low || value > high) return {};
    return static_cast<int>(value);
}

std::optional<int> TypedAltitude(std::string_view text) {
    constexpr int kHighest = 999999, kFeetFrom = 1000;
    if (text.starts_with("FL")) text.remove_prefix(2);
    const auto value = TypedInteger(text, 1, kHighest);
    if (!value) return {};
    return *value < kFeetFrom ? *value * 100 : *value;
}

std::optional<TypedWind> ParseWind(std::string_view text) {
    const auto parts = SplitAtSlash(text);
    if (!parts) return {};
    constexpr double kLimit = 360;
    const auto direction = TypedNumber(parts->first, 0, kLimit),
               speed = TypedNumber(parts->second, 0, kLimit);
    if (!direction || !speed || *direction == kLimit || *speed == kLimit) return {};
    return TypedWind{*direction, *speed};
}

double PoundsOfThousands(double thousands) {
    constexpr double kLbPerKg = 2.20462262;
    return thousands * 1000 * (cfg.WeightUnit == "KGS" ? kLbPerKg : 1);
}

double ThousandsShown(double lb) {
    return DisplayWeight(lb) / 1000;
}
