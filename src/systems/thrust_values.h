#pragma once

// The thrust values that go between the FMC and the aircraft's model.

/// Once a second: the engaged limit; whoever has changed it tells the other.
void ExchangeThrustLimit();

/// Once a second: derates and assumed temperature out, limit lines of the engine display in.
void ExchangeThrustValues();

/// The tablet's take-off rating, every three seconds: 2 for "TO2", 1 for "TO1", else 0.
void PublishTakeoffRating();
