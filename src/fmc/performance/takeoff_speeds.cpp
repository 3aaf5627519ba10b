#include "fmc/performance/takeoff_speeds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "base/angles.h"
#include "base/numbers.h"

namespace {

// A value that is linear in the pressure altitude.
struct AltitudeLine {
    double slope, base;
    double At(double altitude) const { return altitude * slope + base; }
};

double Between(double x, double x1, double y1, double x2, double y2) {
    return y1 + (y2 - y1) * (x - x1) / (x2 - x1);
}

// Through the values at 0, 20 and 40 degrees; nothing changes above 40. What holds below 0 is the caller's.
double ByTemperature(double oat, double at_0, double at_20, double at_40) {
    if (oat > 40) return at_40;
    if (oat > 20) return Between(oat, 20, at_20, 40, at_40);
    return Between(std::max(oat, 0.0), 0, at_0, 20, at_20);
}

double V1TemperatureTerm(double oat, double altitude) {
    constexpr AltitudeLine kAt40{0.0006, 2.52}, kAt20{0.0006, 0.57}, kAt0{0.0004, 1.1}, kCold{0.0004, 2.1};
    const double at_0 = kAt0.At(altitude), cold = kCold.At(altitude);
    if (oat <= 0) return cold - (at_0 - cold) * (oat + 60) / 60;
    return ByTemperature(oat, at_0, kAt20.At(altitude), kAt40.At(altitude));
}

// Minimum control speed on the ground.
double Vmcg(double oat, double altitude) {
    constexpr AltitudeLine kAt40{-0.00196, 123.0}, kAt20{-0.00197, 130.3}, kAt0{-0.00149, 130.7},
        kCold{-0.00155, 132.3};
    const double at_0 = kAt0.At(altitude), cold = kCold.At(altitude);
    if (oat <= 0) return cold - (at_0 - cold) * (oat + 60) / 60;
    return ByTemperature(oat, at_0, kAt20.At(altitude), kAt40.At(altitude));
}

// The base speeds of a flap setting, linear in the weight.
struct FlapRow {
    int flaps;
    AltitudeLine v1, vr, v2;
};
constexpr FlapRow kFlapRows[] = {
    {5, {0.00048, 49.14}, {0.000482, 51.57}, {0.000412, 74.43}},
    {10, {0.000455, 50.5}, {0.00048, 51.07}, {0.0004, 74.43}},
    {15, {0.000443, 50.86}, {0.000448, 52.43}, {0.000384, 74.43}},
    {17, {0.00043, 50.96}, {0.000445, 51.43}, {0.000382, 74.43}},
    {18, {0.00042, 51.16}, {0.00044, 50.43}, {0.00038, 74.43}},
    {20, {0.000411, 52.71}, {0.00043, 50.33}, {0.0004, 66.67}},
};

const FlapRow& RowOf(int flaps) {
    const auto* row = std::ranges::find(kFlapRows, flaps, &FlapRow::flaps);
    return row == std::end(kFlapRows) ? kFlapRows[0] : *row;
}

// A floor rises with the weight through some knots. Light aircraft are bound by the control speed; a knot
// never lies above the next, so that no heavier aircraft rotates slower.
struct Knot {
    double kg, speed;
};

double Quadratic(double a, double b, double c, double x) {
    return (a * x + b) * x + c;
}

std::array<Knot, 4> FloorOfFlaps5(double vmcg) {
    const bool fast = vmcg > 110;
    return {{{100000, fast ? vmcg * 0.9 + 13 : 112},
             {130000, fast ? vmcg * 0.55 + 57.67 : 119},
             {160000, 132},
             {170000, 135}}};
}
std::array<Knot, 4> FloorOfFlaps15(double vmcg) {
    return {{{100000, Quadratic(0.017, -3.535, 293.65, vmcg)},
             {130000, std::min(Quadratic(0.015, -2.71, 239.9, vmcg), 138.0)},
             {190000, 138},
             {190000, 138}}};
}
std::array<Knot, 4> FloorOfFlaps20(double vmcg) {
    return {{{100000, Quadratic(0.017, -3.535, 293.65, vmcg)},
             {130000, std::min(Quadratic(0.02, -3.84, 302.6, vmcg), 137.0)},
             {200000, 137},
             {200000, 137}}};
}

// The least speed to rotate at; 0 for settings that have none.
double RotationFloor(int flaps, double kg, double vmcg) {
    std::array<Knot, 4> knots;
    switch (RowOf(flaps).flaps) {
        case 5:
            knots = FloorOfFlaps5(vmcg);
            break;
        case 15:
            knots = FloorOfFlaps15(vmcg);
            break;
        case 20:
            knots = FloorOfFlaps20(vmcg);
            break;
        default:
            return 0;
    }
    if (!(kg > knots.front().kg)) return knots.front().speed;
    for (std::size_t i = 1; i < knots.size(); ++i)
        if (kg < knots[i].kg)
            return Between(kg, knots[i - 1].kg, knots[i - 1].speed, knots[i].kg, knots[i].speed);
    return knots.back().speed;
}

int WholeKnots(double speed) {
    return WholeNumber(std::round(speed));
}

double ByReduction(int reduction, double first, double second) {
    return reduction == 1 ? first : reduction == 2 ? second : 0;
}

}  // namespace

double TailWind(double wind_dir, double wind_speed, double runway_heading) {
    return -std::cos((wind_dir - runway_heading) * kRadPerDeg) * wind_speed;
}

int ComputeV1(double kg, int wet, int reduction, int flaps, double wind_dir, double wind_speed,
              double runway_heading, double oat, double pressure_alt) {
    constexpr double kPerTailKnot = 0.05, kPerHeadKnot = 0.2, kWet = 6, kSlippery = 10;
    const double wind = TailWind(wind_dir, wind_speed, runway_heading);
    const double speed = RowOf(flaps).v1.At(kg) + V1TemperatureTerm(oat, pressure_alt) +
                         wind * (wind > 0 ? kPerTailKnot : kPerHeadKnot) -
                         (wet == 1   ? kWet
                          : wet == 2 ? kSlippery
                                     : 0) +
                         ByReduction(reduction, 2.2, 4.4);
    return WholeKnots(std::max(speed, Vmcg(oat, pressure_alt)));
}

int ComputeVR(double kg, int reduction, int flaps, double oat, double pressure_alt) {
    constexpr AltitudeLine kAt40{0.000414, 1.93}, kAt20{0.000404, 0.55}, kAt0{0.000293, 0.53};
    const double speed =
        RowOf(flaps).vr.At(kg) +
        ByTemperature(oat, kAt0.At(pressure_alt), kAt20.At(pressure_alt), kAt40.At(pressure_alt)) +
        ByReduction(reduction, 0.4, 2.1);
    return WholeKnots(std::max(speed, RotationFloor(flaps, kg, Vmcg(oat, pressure_alt))));
}

int ComputeV2(double kg, int reduction, int flaps, double oat, double pressure_alt) {
    constexpr AltitudeLine kAt40{-0.000293, -0.53}, kAt20{-0.00025, 0}, kAt0{-0.000172, -0.14};
    constexpr double kNoTermBelow = 2000, kAboveRotation = 9;
    const double at_20 = pressure_alt >= kNoTermBelow ? kAt20.At(pressure_alt) : 0;
    const double speed = RowOf(flaps).v2.At(kg) +
                         ByTemperature(oat, kAt0.At(pressure_alt), at_20, kAt40.At(pressure_alt)) -
                         ByReduction(reduction, 1.0, 1.1);
    const double rotation = RotationFloor(flaps, kg, Vmcg(oat, pressure_alt));
    return WholeKnots(std::max(speed, rotation > 0 ? rotation + kAboveRotation : 0));
}
