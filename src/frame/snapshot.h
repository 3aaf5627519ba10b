#pragma once

// Reading the host's aircraft into `sim`. A failed read leaves what the host gave: the old value or 0.

/// What is read on every service call, pause or not: speed, altitude, attitude, heading and the tick counter.
void ReadMotion();

/// The token table, and what follows from it: heights, speeds, wind, drift, track.
void ReadSnapshot();

/// Steps the flight time and the elapsed-time clock at each change of the seconds token.
void StepFlightClock();

/// Autopilot altitude, decision height, flaps, ADF 2.
void ReadRestOfSnapshot();

/// Once a second: calendar, empty weight, identifiers of the radios.
void ReadSlowValues();

/// Twice a second, for the alerts: which doors are open, and how many.
void ReadDoors();

/// What the tail of the main update looks at: autopilot master, autothrottle arm, gear.
void ReadTailValues();

/// The simulation rate; generations from 10 on give it 256 times.
void ReadSimRate();

/// The frequencies of the two navigation radios.
void ReadNavFrequencies();

/// With the setting VASdisplay, the address space that the process has left.
void ReadFreeAddressSpace();
