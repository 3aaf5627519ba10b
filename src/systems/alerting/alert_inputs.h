#pragma once

// What the alert rules ask of the flight and no other part keeps.

/// At each pass: the heading against the active leg.
void ComputeAlertInputs();

/// Once a second: how far the flight has got for the gear's configuration warning.
void ArmGearWarning();
