#pragma once

// The main battery: its charge, its button against the host's battery, and its test.

constexpr double kFullBatteryVolts = 31;

/// One tick of the charge and of the test's lamp: the battery empties while it alone feeds, in
/// BatteryDrainSecs from full, and fills in the same time while the buses have power. Empty it goes off, full
/// it comes back on.
void StepBattery();

/// Brings the host's battery to where the button stands. A flat battery can't be switched on, only off.
void FollowBatteryButton(int before);

/// Brings the button to where the host's battery stands; with a flat battery it isn't switched on.
void FollowHostBattery();

/// Lights one of the three test lamps for two seconds, if there is power for it.
void TestBattery(int before);
