#pragma once

#include "host/aircraft/airframe.h"

namespace host {

/// One high-bypass turbofan. Thrust follows N1, N1 follows the lever with the lag of a heavy fan.
struct Engine {
    double n1 = 0;  // percent
    double n2 = 0;
    double egt_c = 15;
    double thrust_n = 0;   // below 0 in reverse
    double fuel_flow = 0;  // lb/h
    bool running = true;   // fuel is open and burns
    bool starter = false;  // turns the core while it doesn't run
};

constexpr double kFullReverse = -0.25;  // of the thrust lever
constexpr double kIdleN1 = 22, kFullN1 = 100, kIdleN2 = 65;

/// Moves an engine on by `dt` seconds. `lever` 0 idle to 1 full, below 0 reverse; `density_ratio` to sea
/// level. An engine that isn't running spools down; one whose fuel is opened runs up to idle in some fifteen
/// seconds.
void StepEngine(Engine& engine, const EngineMake& make, double lever, double mach, double density_ratio,
                double dt);

/// The thrust ratio (percent) that an engine which shows one shows at an N1.
double ThrustRatioOfN1(double n1);

}  // namespace host
