#pragma once

// The air around the stand-in aircraft: the international standard atmosphere with a temperature deviation,
// and the airspeeds in it. Altitudes in feet are pressure altitudes, speeds knots, temperatures kelvin.

namespace host {

constexpr double kMetresPerFoot = 0.3048;
constexpr double kFeetPerNm = 6076.115;
constexpr double kKnotsPerMps = 3600.0 / 1852;
constexpr double kGravity = 9.80665;  // m/s^2
constexpr double kStandardHpa = 1013.25;
constexpr double kZeroCelsius = 273.15;

/// The air where the aircraft is; the same wind at all heights.
struct AirMass {
    double wind_from = 0;  // degrees true
    double wind_kt = 0;
    double isa_deviation = 0;  // kelvin
    double qnh = kStandardHpa;
};

/// Altitude that an altimeter set to `setting` hPa shows at a true altitude.
double IndicatedAltitude(double altitude, double setting, const AirMass& air);

double Temperature(double altitude, const AirMass& air);
double Pressure(double altitude);                          // Pa
double Density(double altitude, const AirMass& air);       // kg/m^3
double SpeedOfSound(double altitude, const AirMass& air);  // kt

/// Between Mach and calibrated airspeed, by the compressible pitot law.
double CasOfMach(double mach, double altitude);
double MachOfCas(double cas, double altitude);

}  // namespace host
