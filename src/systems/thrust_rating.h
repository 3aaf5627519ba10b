#pragma once

// The thrust that the FMC asks for. systems/thrust_values tells the aircraft's model.

/// Of autoflight.thrust_limit.
enum ThrustMode { kThrustTakeoff, kThrustGoAround, kThrustContinuous, kThrustClimb, kThrustCruise };

void SelectThrustMode(ThrustMode mode);

/// "TO", "GA", "CON", "CLB" or "CRZ"; empty for what is no mode.
const char* ThrustModeName();

/// 0 none, 1 (10 percent less) or 2 (20 percent less).
void SelectTakeoffDerate(int derate);
void SelectClimbDerate(int derate);

/// Degrees Celsius, 0 to 99; kNoAssumedTemperature for none.
void SelectAssumedTemperature(int temperature);
