#include "host/aircraft/cabin.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/air.h"

namespace host {
namespace {

constexpr double kPascalPerPsi = 6894.757;
constexpr double kMostDifference = 9.4;              // psi
constexpr double kCruise = 40000, kInCruise = 6000;  // ft: what the cabin holds there
constexpr double kUp = 500, kDown = 350;             // fpm

double Difference(double cabin, double outside) {
    return (Pressure(cabin) - Pressure(outside)) / kPascalPerPsi;
}

// The lowest cabin that the hull carries, by halving.
double LowestCabin(double outside) {
    double low = -2000, high = std::max(outside, low);
    if (Difference(low, outside) <= kMostDifference) return low;
    for (int i = 0; i < 12; ++i) {
        const double middle = (low + high) / 2;
        (Difference(middle, outside) > kMostDifference ? low : high) = middle;
    }
    return high;
}

double ScheduledAltitude(const CabinSetting& setting) {
    if (setting.on_ground) return setting.outside;
    const double for_landing = std::min(setting.outside, setting.landing_elevation);
    const double by_height = kInCruise * setting.outside / kCruise;
    return std::max({for_landing, by_height, LowestCabin(setting.outside)});
}

// Feet a minute.
double Rate(const Cabin& cabin, const CabinSetting& setting) {
    constexpr double kLeak = 150;                      // fpm for each psi, without packs
    constexpr double kBlowOut = 30, kGroundTime = 20;  // s
    const double to_outside = setting.outside - cabin.altitude;
    if (setting.hole) return to_outside * 60 / kBlowOut;
    if (setting.packs == 0) {
        const double leak = kLeak * cabin.pressure_difference;
        return std::fabs(to_outside) < std::fabs(leak) / 60 ? to_outside * 60 : leak;
    }
    if (setting.on_ground) return to_outside * 60 / kGroundTime;
    if (!setting.valve_auto[0] && !setting.valve_auto[1]) return 0;  // the flow through them stays
    return std::clamp((ScheduledAltitude(setting) - cabin.altitude) * 6, -kDown, kUp);
}

double ValveFor(const Cabin& cabin, const CabinSetting& setting) {
    constexpr double kOpen = 180, kLeast = 18, kBlows = 0.8;  // degrees, psi
    if (setting.on_ground) return kOpen;
    if (setting.packs == 0) return 0;
    return kLeast + (kOpen - kLeast) * std::exp(-std::max(cabin.pressure_difference, 0.0) / kBlows);
}

}  // namespace

void SettleCabin(Cabin& cabin, const CabinSetting& setting) {
    cabin.altitude = ScheduledAltitude(setting);
    cabin.rate = 0;
    cabin.pressure_difference = Difference(cabin.altitude, setting.outside);
    for (double& valve : cabin.valves) valve = ValveFor(cabin, setting);
}

void StepCabin(Cabin& cabin, const CabinSetting& setting, double dt) {
    constexpr double kValveRate = 20;  // degrees a second
    constexpr double kReliefRate = 4;  // s
    cabin.rate = Rate(cabin, setting);
    // The relief valves: no more outside than inside, nor inside than the hull carries.
    const double lowest = std::min(LowestCabin(setting.outside), setting.outside);
    if (cabin.altitude < lowest)
        cabin.rate = std::max(cabin.rate, (lowest - cabin.altitude) * 60 / kReliefRate);
    if (cabin.altitude > setting.outside)
        cabin.rate = std::min(cabin.rate, (setting.outside - cabin.altitude) * 60 / kReliefRate);
    cabin.altitude += cabin.rate / 60 * dt;
    cabin.pressure_difference = Difference(cabin.altitude, setting.outside);
    for (int i = 0; i < 2; ++i)
        if (setting.valve_auto[i])
            cabin.valves[i] +=
                std::clamp(ValveFor(cabin, setting) - cabin.valves[i], -kValveRate * dt, kValveRate * dt);
}

}  // namespace host
