#include "host/aircraft/engines.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

// Below idle the core gathers speed by its flame, or turns by its starter or what is left of the fan's.
void StepCore(Engine& engine, double dt) {
    constexpr double kCrankedN2 = 28, kRunUp = 4;  // percent, percent a second
    constexpr double kLag = 4;                     // s
    if (engine.running) {
        if (engine.n2 < kIdleN2) engine.n2 = std::min(engine.n2 + kRunUp * dt, kIdleN2);
        return;
    }
    const double turned = std::max(engine.n1 * 1.5, engine.starter ? kCrankedN2 : 0);
    engine.n2 += (turned - engine.n2) * std::min(dt / kLag, 1.0);
}

}  // namespace

void StepEngine(Engine& engine, double lever, double mach, double density_ratio, double temperature_ratio,
                double static_thrust, double dt) {
    StepCore(engine, dt);
    const double core = std::min(engine.n2 / kIdleN2, 1.0);  // what a core below idle still lacks
    const double wanted_n1 =
        engine.running ? core * core * (kIdleN1 + (kFullN1 - kIdleN1) * std::clamp(lever, 0.0, 1.0)) : 0;
    // A fan near idle takes seconds to gather speed, near full thrust it answers at once.
    const double lag = 1.2 + 3.0 * std::clamp((70 - engine.n1) / 50, 0.0, 1.0);
    engine.n1 += (wanted_n1 - engine.n1) * std::min(dt / lag, 1.0);
    const double spool = std::clamp((engine.n1 - kIdleN1) / (kFullN1 - kIdleN1), 0.0, 1.0);
    if (engine.running && engine.n2 >= kIdleN2) engine.n2 = kIdleN2 + 32 * spool;

    // Full thrust falls with speed and, less than the density, with height; idle gives a little at rest and
    // turns to drag at speed. A fit to figures published for fans of bypass ratio 9.
    const double full =
        static_thrust * (0.9 - 0.75 * mach + 0.35 * mach * mach) * std::pow(density_ratio, 0.8);
    const double idle = static_thrust * (0.05 - 0.06 * mach) * density_ratio;
    engine.thrust_n = engine.running ? core * core * (idle + (full - idle) * std::pow(spool, 1.3)) : 0;

    constexpr double kLbfPerNewton = 0.224809;
    const double specific = (0.30 + 0.33 * mach) * std::sqrt(temperature_ratio);  // lb/h for each lbf
    const double idle_flow = 700 + 900 * density_ratio;
    engine.fuel_flow = engine.running ? std::max(idle_flow, engine.thrust_n * kLbfPerNewton * specific) : 0;
    const double wanted_egt = engine.running ? 380 + 420 * spool : 15;
    engine.egt_c += (wanted_egt - engine.egt_c) * std::min(dt / 4, 1.0);
}

}  // namespace host
