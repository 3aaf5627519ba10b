#pragma once

// What one unit is in another. Where the system uses a rounder figure of its own, it stands where it is used.

constexpr double kFeetPerMetre = 3.2808399;
constexpr double kFeetPerNm = 6076.12;
constexpr double kFpsPerKnot = 1.68781;
constexpr double kFpmPerKnot = kFeetPerNm / 60;
constexpr double kKgPerLb = 0.45359237;
