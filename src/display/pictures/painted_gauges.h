#pragma once

#include <span>
#include <string_view>

// Which gauges are painted, and what is on them.

/// What is painted, by gauge id.
enum class Painting { kDisplayUnit, kDebug, kStandby, kHud, kEfb };

/// Who may paint: which cockpit must be shown.
enum class ShownIn { kAlways, k2dCockpit, kVirtualCockpit };

/// One row of the gauge table: everything that the painted gauges differ in.
struct PaintedGauge {
    const char* name;
    int gauge_id;
    Painting painting;
    int unit;  // display unit 1 to 5, or the tablet's side
    ShownIn shown_in;
    int width, height;  // logical frame
};

/// The row of a gauge by its name; null for one that isn't painted.
const PaintedGauge* FindPaintedGauge(std::string_view name);
std::span<const PaintedGauge> PaintedGauges();
