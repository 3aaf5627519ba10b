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

void StepEngine(Engine& engine, const EngineMake& make, double lever, double mach, double density_ratio,
                double dt) {
    constexpr double kReverseN1 = 72;
    StepCore(engine, dt);
    const double core = std::min(engine.n2 / kIdleN2, 1.0);  // what a core below idle still lacks
    const bool reverse = lever < 0;
    const double range = reverse ? kReverseN1 - kIdleN1 : kFullN1 - kIdleN1;
    const double share = std::clamp(reverse ? lever / kFullReverse : lever, 0.0, 1.0);
    const double wanted_n1 = engine.running ? core * core * (kIdleN1 + range * share) : 0;
    // A fan near idle takes seconds to gather speed, near full thrust it answers at once.
    const double lag = 1.2 + 3.0 * std::clamp((70 - engine.n1) / 50, 0.0, 1.0);
    engine.n1 += (wanted_n1 - engine.n1) * std::min(dt / lag, 1.0);
    const double spool = std::clamp((engine.n1 - kIdleN1) / (kFullN1 - kIdleN1), 0.0, 1.0);
    if (engine.running && engine.n2 >= kIdleN2) engine.n2 = kIdleN2 + 32 * spool;

    // Full thrust falls with speed and, less than the density, with height. A fit to figures published for
    // fans of bypass ratio 9.
    const double full =
        make.static_thrust_n * (0.9 - 0.75 * mach + 0.35 * mach * mach) * std::pow(density_ratio, 0.77);
    // Idle pushes at rest; in flight its control keeps what brings the aircraft down its planned path.
    constexpr double kFlightIdle = 7300, kAtRest = 0.025, kSlowMach = 0.3;  // N, share of the full thrust
    const double idle = kFlightIdle * std::pow(density_ratio, 0.65) +
                        make.static_thrust_n * kAtRest * std::max(1 - mach / kSlowMach, 0.0);
    const double gross = engine.running ? core * core * (full - idle) * std::pow(spool, 1.3) : 0;
    constexpr double kTurnedBack = 0.45;  // of the fan's thrust
    engine.thrust_n = engine.running ? (reverse ? -kTurnedBack * gross : core * core * idle + gross) : 0;

    // W. H. Willans' line: a flow that idling alone takes, and from there straight with the thrust.
    constexpr double kLbfPerNewton = 0.224809, kSpecific = 0.37;  // lb/h for each lbf
    const double idle_flow = 1100 * density_ratio + 3300 * std::sqrt(density_ratio) * mach;
    engine.fuel_flow =
        engine.running ? make.fuel_factor * (idle_flow + kSpecific * gross * kLbfPerNewton) : 0;
    const double wanted_egt = engine.running ? 380 + 420 * spool : 15;
    engine.egt_c += (wanted_egt - engine.egt_c) * std::min(dt / 4, 1.0);
}

double ThrustRatioOfN1(double n1) {
    return std::max(1.1 * n1 - 0.0023 * n1 * n1 - 0.3019, 0.0);
}

}  // namespace host
