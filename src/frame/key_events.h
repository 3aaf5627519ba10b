#pragma once

// The host's key events that the system sends or takes up, each with one integer value.

constexpr int kKeyPause = 0x10019;
constexpr int kKeyAutopilotMaster = 0x1002c;
constexpr int kKeyPositionPlaced1 = 0x100a4;  // around the placing of the aircraft
constexpr int kKeyPositionPlaced2 = 0x10102;
constexpr int kKeyParkingBrake = 0x100d8;
constexpr int kKeyEnginesFuelOn = 0x100ee;  // both engines
constexpr int kKeyEnginesCutOff = 0x100f2;  // both engines
constexpr int kKeySimRateUp = 0x100fd;
constexpr int kKeySimRateDown = 0x100fe;
constexpr int kKeyAutothrottleToGa = 0x10101;
constexpr int kKeyEng1FuelOn = 0x101bf;
constexpr int kKeyEng1CutOff = 0x101c3;
constexpr int kKeyEng2FuelOn = 0x101c4;
constexpr int kKeyEng2CutOff = 0x101c8;
constexpr int kKeyAutothrottleRearm = 0x10215;
constexpr int kKeyGearDown = 0x10220;
constexpr int kKeyAutothrottleDisarm = 0x1022e;
constexpr int kKeyAltitudeSet = 0x1024c;  // ft
constexpr int kKeyEngineAutoStart = 0x102b0;
constexpr int kKeyMasterBatteryToggle = 0x102c1;
constexpr int kKeyEng1StarterToggle = 0x102fc;
constexpr int kKeyEng2StarterToggle = 0x102fd;
constexpr int kKeyDecisionHeightUp = 0x10311;
constexpr int kKeyDecisionHeightDown = 0x10312;
