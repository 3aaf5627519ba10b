#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

namespace host {

/// Takes the roll requests of the panel, arms, captures and drops lateral modes.
void UpdateLateralMode(AutoflightLogic& logic, const FlightValues& now);

/// The bank (degrees, right positive) that the lateral mode wants; 0 without one.
double LateralBank(AutoflightLogic& logic, const FlightValues& now, double dt);

/// The bank that brings the track to a magnetic direction within a few seconds.
double BankForTrack(const FlightValues& now, double wanted, double most);

/// Another mode has taken over from LNAV by itself: LNAV's request no longer stands.
void ClearLnavRequest(AutoflightLogic& logic);

/// TO/GA: holds the runway's heading on the ground and the track that it finds in the air, LNAV armed behind
/// it.
void GoAroundLaterally(AutoflightLogic& logic, const FlightValues& now);

/// How fast (degrees a second, right positive) the nose is to turn on the runway, in take-off and roll-out.
double GroundSteering(const AutoflightLogic& logic, const FlightValues& now);

/// Enters the heading or track hold at the direction in which the aircraft rolls out.
void HoldDirection(AutoflightLogic& logic, const FlightValues& now);

}  // namespace host
