#pragma once

#include <optional>
#include <string_view>
#include <utility>

// What the crew types, read strictly: no letters in a number.

/// Both sides of the first slash; nothing without one.
std::optional<std::pair<std::string_view, std::string_view>> SplitAtSlash(std::string_view text);

/// A number from `low` to `high`; nothing for any other text.
std::optional<double> TypedNumber(std::string_view text, double low, double high);
std::optional<int> TypedInteger(std::string_view text, int low, int high);

/// An altitude in feet of "350", "FL350" or "35000": below 1000 hundreds of feet. Nothing for what is no
/// positive number.
std::optional<int> TypedAltitude(std::string_view text);

/// Direction and speed, "210/15", each from 0 to below 360.
struct TypedWind {
    double direction = 0, speed = 0;
};
std::optional<TypedWind> ParseWind(std::string_view text);

/// Pounds of a weight typed or shown in thousands of the configuration's unit.
double PoundsOfThousands(double thousands);
double ThousandsShown(double lb);
