#pragma once

#include <span>
#include <string_view>

// Doors, chocks and the ground's power, which a user opens, sets and brings.

namespace host {

struct Aircraft;

struct GroundRow {
    std::string_view name, told;
    /// Where the simulator tells a door; empty for what is none.
    std::string_view expression;
    /// The local variable behind it, or behind the ground's power; empty for what has none.
    std::string_view variable;
};
std::span<const GroundRow> GroundRows();
/// Null for a name that is none.
const GroundRow* FindGroundService(std::string_view name);

bool IsSet(const Aircraft& aircraft, const GroundRow& row);
/// False when the aircraft must stand for it: what is set may be taken away at any time.
bool SetGroundService(Aircraft& aircraft, const GroundRow& row, bool on);

/// Tells the simulator the doors: those that follow a local variable, and those that have failed.
void FillDoors(const Aircraft& aircraft);
bool IsADoorOpen();

}  // namespace host
