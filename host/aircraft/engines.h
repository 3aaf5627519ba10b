#pragma once

#include "host/aircraft/airframe.h"

namespace host {

/// One high-bypass turbofan. Thrust follows N1, N1 follows the lever with the lag of a heavy fan.
struct Engine {
    double n1 = 0;  // percent
    double n2 = 0;
    double egt_c = 15;
    double thrust_n = 0;    // below 0 in reverse
    double fuel_flow = 0;   // lb/h
    bool running = true;    // it burns
    bool fuel_on = true;    // the crew's fuel control stands at run
    bool fed = true;        // fuel comes up to it from a tank
    bool failed = false;    // damaged: it doesn't burn
    bool starter = false;   // turns the core; lets go by itself once the core runs away from it
    double ignition_s = 0;  // how long fuel and spark have been there without a flame
};

constexpr double kFullReverse = -0.25;  // of the thrust lever
constexpr double kIdleN1 = 22, kFullN1 = 100, kIdleN2 = 65;

/// Moves an engine on by `dt` seconds. `lever` 0 idle to 1 full, below 0 reverse; `density_ratio` to sea
/// level. A cold engine comes to idle in about a minute: the starter cranks the core, fuel that is on lights
/// from 18 percent of N2, the exhaust is hottest half way up. In flight the core turns in the wind, fast
/// enough to light above some 260 knots.
void StepEngine(Engine& engine, const EngineMake& make, double lever, double mach, double density_ratio,
                double dt);

/// N1 (percent) that the levers command.
double CommandedN1(const Engine& engine, double lever);

/// The thrust ratio (percent) that an engine which shows one shows at an N1.
double ThrustRatioOfN1(double n1);

}  // namespace host
