#pragma once

// Landing gear and brakes.

/// The gear can't be up on the ground, wherever the lever of the model stands.
void CheckGearLever();

void ReadAutobrake();
