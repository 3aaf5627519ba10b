#pragma once

// The ram air turbine. It comes out by its button, without power, or without hydraulic pressure, but not in
// the first two minutes, and stays out until the maintenance reset.

/// Once a second: in the air with dead buses it comes out and feeds them.
void DeployTurbineForPower();

/// Each tick: it comes out while both engines turn and all three hydraulic systems are low.
void DeployTurbineForPressure();

/// It is out, and fast enough for its hydraulic pump.
bool DoesTurbineTurn();
