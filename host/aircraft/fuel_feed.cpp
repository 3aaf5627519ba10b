#include "host/aircraft/fuel_feed.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/aircraft.h"

namespace host {
namespace {

constexpr int kNoTank = -1;

bool Holds(const Aircraft& aircraft, int tank) {
    return aircraft.fuel_lb[static_cast<std::size_t>(tank)] > 0;
}

bool PressesMain(const Aircraft& aircraft, std::size_t side) {
    const Switches& switches = aircraft.switches;
    return HasAlternatingCurrent(aircraft) && (switches.forward_pumps[side] || switches.aft_pumps[side]) &&
           Holds(aircraft, static_cast<int>(side));
}

bool PressesCentre(const Aircraft& aircraft, std::size_t side) {
    return HasAlternatingCurrent(aircraft) && aircraft.switches.centre_pumps[side] &&
           Holds(aircraft, kCentreTank);
}

int TankOf(const Aircraft& aircraft, std::size_t side) {
    const std::size_t other = 1 - side;
    const bool crossfeed = aircraft.switches.crossfeed;
    if (PressesCentre(aircraft, side) || (crossfeed && PressesCentre(aircraft, other))) return kCentreTank;
    if (PressesMain(aircraft, side)) return static_cast<int>(side);
    if (crossfeed && PressesMain(aircraft, other)) return static_cast<int>(other);
    return Holds(aircraft, static_cast<int>(side)) ? static_cast<int>(side) : kNoTank;
}

// What the centre pumps leave there drains into mains that have room for it.
void Scavenge(Aircraft& aircraft, double dt) {
    constexpr double kRoomBelow = 20000, kPerSecond = 4;  // lb
    for (const FuelTank main : {kLeftTank, kRightTank}) {
        if (aircraft.fuel_lb[main] >= kRoomBelow || !aircraft.engines[main].running) continue;
        const double moved = std::min(aircraft.fuel_lb[kCentreTank], kPerSecond * dt);
        aircraft.fuel_lb[kCentreTank] -= moved;
        aircraft.fuel_lb[main] += moved;
    }
}

void Leak(Aircraft& aircraft, double dt) {
    constexpr double kPerSecond = 8;  // lb
    constexpr Failure kLeaks[] = {kLeakLeft, kLeakRight};
    for (std::size_t tank = 0; tank < std::size(kLeaks); ++tank)
        if (aircraft.fails[kLeaks[tank]])
            aircraft.fuel_lb[tank] = std::max(aircraft.fuel_lb[tank] - kPerSecond * dt, 0.0);
}

void Balance(Aircraft& aircraft, double dt) {
    constexpr double kPerSecond = 5;  // lb
    if (!aircraft.switches.balance || !HasAlternatingCurrent(aircraft)) return;
    const double apart = aircraft.fuel_lb[kLeftTank] - aircraft.fuel_lb[kRightTank];
    const double moved = std::clamp(apart / 2, -kPerSecond * dt, kPerSecond * dt);
    aircraft.fuel_lb[kLeftTank] -= moved;
    aircraft.fuel_lb[kRightTank] += moved;
}

}  // namespace

void StepFuel(Aircraft& aircraft, double dt) {
    Leak(aircraft, dt);
    Balance(aircraft, dt);
    Scavenge(aircraft, dt);
    for (std::size_t side = 0; side < aircraft.engines.size(); ++side) {
        Engine& engine = aircraft.engines[side];
        const int tank = TankOf(aircraft, side);
        engine.fed = tank != kNoTank;
        if (!engine.fed) continue;
        double& fuel = aircraft.fuel_lb[static_cast<std::size_t>(tank)];
        fuel = std::max(fuel - engine.fuel_flow / 3600 * dt, 0.0);
    }
}

}  // namespace host
