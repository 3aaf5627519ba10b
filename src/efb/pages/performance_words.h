#pragma once

#include <string>
#include <string_view>

#include "efb/pages/option_lists.h"
#include "efb/words/face.h"

// What the two performance pages have in common: two columns of fields, keys at the left edge, and how
// weights and winds are read and shown.

constexpr int kFieldX = 92, kChoiceX = 245, kFieldWidth = 92, kChoiceWidth = 91, kFieldHeight = 20;

/// A box in the column of typed fields, and one in that of chosen ones; `y` from the top.
constexpr TabletBox TypedBox(int y) {
    return {kFieldX, y, kFieldWidth, kFieldHeight};
}
constexpr TabletBox ChosenBox(int y) {
    return {kChoiceX, y, kChoiceWidth, kFieldHeight};
}

/// The field of a list, with its label.
void AddListField(TabletFace& face, std::string_view label, TabletList list);

/// The airport's field, which leads to the search.
void AddAirportField(TabletFace& face, std::string_view airport);

/// The keys at the left edge, the last of which swaps the two pages, and those below the fields.
struct PerformanceKeys {
    const char* swap_text;
    int swap_page;
    TabletAction copy, calculate;
    bool calculated;
};
void AddPerformanceKeys(TabletFace& face, const PerformanceKeys& keys);

/// A weight as it is typed: above 100 and below 1000 it is thousands, and it is in the configured unit.
/// Pounds.
double TypedWeight(std::string_view text);
/// "250000 KG"; empty for 0. The number alone in the configured unit.
std::string WeightText(double pounds);
std::string WeightUnitText();
double ShownWeight(double pounds);

/// "230/12": a direction in degrees and a speed in knots; without a slash the speed is 0.
void ReadWind(std::string_view text, double& direction, double& speed);
std::string WindText(double direction, double speed);
/// "12 HW" or "12 TW" and "3 XW".
std::string WindPartsText(double direction, double speed, double heading);
/// "15 C" and "59 F".
std::string TemperatureText(double celsius);
