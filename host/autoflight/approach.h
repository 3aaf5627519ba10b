#pragma once

#include "host/autoflight/autoflight_logic.h"
#include "host/autoflight/flight_values.h"

// The modes of an approach: a localizer or the route's final course, a glide slope or the route's glide path,
// FLARE and ROLLOUT.

namespace host {

/// Captures what is armed when its needle comes alive, arms FLARE and ROLLOUT and goes over to them.
void UpdateApproach(AutoflightLogic& logic, const FlightValues& now);

/// Bank (degrees) along the beam of the lateral mode, kLocalizer or kFinalApproachCourse.
double BeamBank(AutoflightLogic& logic, const FlightValues& now, double dt);

/// Flight path (degrees) down the slope of the vertical mode, kGlideSlope or kGlidePath.
double SlopePath(AutoflightLogic& logic, const FlightValues& now, double dt);

/// Flight path (degrees) that rounds out: the sink falls with the height to that of a gentle touch-down.
double FlarePath(const FlightValues& now);

/// Magnetic heading (degrees) along the runway on the wheels.
double RolloutHeading(const AutoflightLogic& logic, const FlightValues& now);

}  // namespace host
