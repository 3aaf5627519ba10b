#include "host/aircraft/air.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr double kSeaLevelK = 288.15, kSeaLevelPa = 101325, kLapse = 0.0065, kGasConstant = 287.053;
constexpr double kTropopauseM = 11000, kTropopauseK = 216.65;
constexpr double kSeaLevelSoundKt = 661.4788;
constexpr double kFeetPerHpa = 27.3;

double StandardTemperature(double altitude) {
    return std::max(kSeaLevelK - kLapse * altitude * kMetresPerFoot, kTropopauseK);
}

}  // namespace

double IndicatedAltitude(double altitude, double setting, const AirMass& air) {
    return altitude + (setting - air.qnh) * kFeetPerHpa;
}

double Temperature(double altitude, const AirMass& air) {
    return StandardTemperature(altitude) + air.isa_deviation;
}

double Pressure(double altitude) {
    const double metres = altitude * kMetresPerFoot;
    const double power = kGravity / (kGasConstant * kLapse);
    const double below = kSeaLevelPa * std::pow(StandardTemperature(altitude) / kSeaLevelK, power);
    if (metres <= kTropopauseM) return below;
    return below * std::exp(-kGravity * (metres - kTropopauseM) / (kGasConstant * kTropopauseK));
}

double Density(double altitude, const AirMass& air) {
    return Pressure(altitude) / (kGasConstant * Temperature(altitude, air));
}

double SpeedOfSound(double altitude, const AirMass& air) {
    return kSeaLevelSoundKt * std::sqrt(Temperature(altitude, air) / kSeaLevelK);
}

double CasOfMach(double mach, double altitude) {
    const double impact = Pressure(altitude) * (std::pow(1 + 0.2 * mach * mach, 3.5) - 1);
    return kSeaLevelSoundKt * std::sqrt(5 * (std::pow(impact / kSeaLevelPa + 1, 2.0 / 7) - 1));
}

double MachOfCas(double cas, double altitude) {
    const double ratio = cas / kSeaLevelSoundKt;
    const double impact = kSeaLevelPa * (std::pow(1 + 0.2 * ratio * ratio, 3.5) - 1);
    return std::sqrt(5 * (std::pow(impact / Pressure(altitude) + 1, 2.0 / 7) - 1));
}

}  // namespace host
