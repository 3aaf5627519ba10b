#pragma once

#include "host/aircraft/aircraft.h"

// What the aircraft's own model shows of its systems and takes from its panels by named variables. Nothing of
// it needs every tick.

namespace host {

/// Takes the panels' switches, what the doors do and for which elevation the cabin is led.
void TakeSwitches(Aircraft& aircraft);

/// Surfaces and gear doors; then brakes, cabin, bottles and doors. Values set by hand stay.
void FillControlSurfaces(const Aircraft& aircraft);
void FillModelSystems(const Aircraft& aircraft);

constexpr int kSurfaceTicks = 3, kSystemTicks = 18;  // how often they are filled

}  // namespace host
