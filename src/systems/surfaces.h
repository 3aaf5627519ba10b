#pragma once

// What the aircraft's model tells of its surfaces and brakes. A name that it doesn't have, or that gives no
// number, leaves the old value.

/// Each tick: control surfaces and the stabiliser.
void ReadSurfaces();

/// Once a second.
void ReadBrakeTemperatures();
