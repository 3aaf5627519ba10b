#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// What the crew has entered about where the aircraft stands, and what the FMC may find its position by.
/// Degrees.
struct PosInitState {
    std::string RefAirport;  // reference airport, empty = none
    double RefAirportLat = 0, RefAirportLon = 0;
    std::string RefGate;  // its gate, empty = none
    double RefGateLat = 0, RefGateLon = 0;
    // given to the inertial reference units; a latitude of exactly 0 = none
    double InertialEntryLat = 0, InertialEntryLon = 0;
    double RnpEntry = 1;     // nm, the navigation performance that is required
    int PosUpdateArmed = 0;  // an update of the position waits for the crew
    int PosBrgDistMode = 0;  // POS REF shows bearing and distance
    int GpsNavEnabled = 1, DmeDmeNavEnabled = 1, VorDmeNavEnabled = 1, LocNavEnabled = 1;
};

extern PosInitState pos_init;
extern const std::span<const Variable> kPosInitVariables;
