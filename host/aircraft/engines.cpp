#include "host/aircraft/engines.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace host {
namespace {

constexpr double kLightOffN2 = 18;

// Calibrated airspeed, kt, as far as a windmill cares.
double WindSpeed(double mach, double density_ratio) {
    return 640 * mach * std::sqrt(density_ratio);
}

void StepFlame(Engine& engine, double windmill, double dt) {
    constexpr double kIgnition = 2;          // s
    constexpr double kWindmillFactor = 0.8;  // the wind helps a flame that a starter alone couldn't hold
    if (!engine.fuel_on || !engine.fed || engine.failed) {
        engine.running = false;
        engine.ignition_s = 0;
    } else if (!engine.running) {
        const bool fast_enough =
            engine.n2 >= (windmill > 0 && !engine.starter ? kLightOffN2 * kWindmillFactor : kLightOffN2);
        engine.ignition_s = fast_enough ? engine.ignition_s + dt : 0;
        engine.running = engine.ignition_s >= kIgnition;
        if (engine.running) engine.ignition_s = 0;
    }
}

// Below idle the core gathers speed by its flame; without one it turns by its starter or the wind.
void StepCore(Engine& engine, double windmill, double dt) {
    constexpr double kCrankedN2 = 29, kStarterLetsGo = 50;  // percent
    constexpr double kLag = 12;                             // s
    constexpr double kFirstRunUp = 1, kMoreRunUp = 0.02;    // percent a second, and for each percent of N2
    if (engine.n2 >= kStarterLetsGo) engine.starter = false;
    if (engine.running) {
        const double run_up = kFirstRunUp + kMoreRunUp * std::max(engine.n2 - kLightOffN2, 0.0);
        if (engine.n2 < kIdleN2) engine.n2 = std::min(engine.n2 + run_up * dt, kIdleN2);
        return;
    }
    const double turned = std::max(windmill, engine.starter ? kCrankedN2 : 0);
    engine.n2 += (turned - engine.n2) * std::min(dt / kLag, 1.0);
}

double WantedEgt(const Engine& engine, double spool) {
    constexpr double kAmbient = 15, kIdle = 380, kMore = 420, kStartPeak = 190;
    if (!engine.running) return kAmbient;
    const double way = std::clamp((engine.n2 - kLightOffN2) / (kIdleN2 - kLightOffN2), 0.0, 1.0);
    return kIdle + kMore * spool + kStartPeak * std::sin(std::numbers::pi * way);
}

}  // namespace

double CommandedN1(const Engine& engine, double lever) {
    constexpr double kReverseN1 = 72;
    const double core = std::min(engine.n2 / kIdleN2, 1.0);  // what a core below idle still lacks
    const bool reverse = lever < 0;
    const double range = reverse ? kReverseN1 - kIdleN1 : kFullN1 - kIdleN1;
    const double share = std::clamp(reverse ? lever / kFullReverse : lever, 0.0, 1.0);
    return engine.running ? core * core * (kIdleN1 + range * share) : 0;
}

void StepEngine(Engine& engine, const EngineMake& make, double lever, double mach, double density_ratio,
                double dt) {
    constexpr double kWindN1 = 0.035, kWindN2 = 0.058;  // percent for each knot
    const double wind = WindSpeed(mach, density_ratio);
    StepFlame(engine, wind * kWindN2, dt);
    StepCore(engine, wind * kWindN2, dt);
    const double core = std::min(engine.n2 / kIdleN2, 1.0);
    const bool reverse = lever < 0;
    const double wanted_n1 = std::max(CommandedN1(engine, lever), engine.running ? 0 : wind * kWindN1);
    // A fan near idle takes seconds to gather speed, near full thrust it answers at once.
    constexpr double kRunDown = 8;  // s
    const double lag = engine.running ? 1.2 + 3.0 * std::clamp((70 - engine.n1) / 50, 0.0, 1.0) : kRunDown;
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
        engine.running ? make.fuel_factor * (core * idle_flow + kSpecific * gross * kLbfPerNewton) : 0;
    const double egt_lag = engine.running ? 4 : 60;  // s
    engine.egt_c += (WantedEgt(engine, spool) - engine.egt_c) * std::min(dt / egt_lag, 1.0);
}

double ThrustRatioOfN1(double n1) {
    return std::max(1.1 * n1 - 0.0023 * n1 * n1 - 0.3019, 0.0);
}

}  // namespace host
