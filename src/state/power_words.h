#pragma once

#include "state/electrical.h"

// What the one number for all electrical power, `power_level`, means: every file that asks what is alive,
// asks here.

constexpr int kBatteryPower = 5;         // what the battery alone gives
constexpr int kTurbinePower = 10;        // what the ram air turbine gives
constexpr int kAcBusPower = 10;          // the buses are powered
constexpr int kFirstUnitsPower = 15;     // display units of the first level
constexpr int kAllBusesPower = 180;      // every AC bus, and the display units of the second level
constexpr int kUnrestrictedPower = 500;  // nothing need be shed

/// The battery's own bus: lamps and switches that need no more.
inline bool IsBatteryBusAlive() {
    return electrical.power_level >= kBatteryPower;
}
/// The battery feeds the aircraft and nothing else does.
inline bool IsOnBatteryAlone() {
    return electrical.power_level == kBatteryPower;
}
/// There is more than the battery.
inline bool IsPoweredBeyondBattery() {
    return electrical.power_level > kBatteryPower;
}
/// As the power model has it, once a second.
inline bool IsAcBusPowered() {
    return electrical.ac_bus_powered == 1;
}
inline bool AreFirstUnitsPowered() {
    return electrical.power_level >= kFirstUnitsPower;
}
inline bool AreAllBusesAlive() {
    return electrical.power_level >= kAllBusesPower;
}
inline bool IsPowerUnrestricted() {
    return electrical.power_level >= kUnrestrictedPower;
}
