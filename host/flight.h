#pragma once

#include <optional>
#include <string>

#include "host/aircraft/aircraft.h"
#include "host/aircraft/ground_services.h"
#include "host/autoflight/autoflight_logic.h"

// The aircraft in its world: where it stands, the air around it, and who flies it. One a process, as the
// world.

namespace host {

struct Placement {
    double lat, lon, alt_ft, heading;  // feet above the sea, degrees true
    double ias = 0;
};

struct Flight {
    Airframe airframe = AirframeOf("");  // what is flown when the aircraft is placed
    Aircraft aircraft;
    AutoflightLogic autoflight;
    std::optional<double> outside_c;  // temperature asked for at the aircraft; none = the standard's
};

extern Flight flight;

/// Where the aircraft stands when nobody has placed it, on the ground.
Placement DemonstrationStand();

/// Puts the aircraft somewhere, on the ground when the altitude is the ground's, and fills the
/// tokens.
void PlaceAircraft(const Placement& placement);

/// Shuts the aircraft down where it stands: engines off and at rest, the simulator's battery off, brakes set.
void ShutDownAircraft();

/// Loads so many pounds of fuel, what the tanks take: the mains first, alike, the rest into the centre.
void LoadFuel(double pounds);

/// The air at the aircraft: the wind's direction is true and the same at all heights.
void SetWind(double from_deg, double speed_kt);
void SetOutsideTemperature(double celsius);
void SetQnh(double hpa);

/// A failure begins or ends, also where the aircraft doesn't fly.
void SetFailure(const FailureRow& row, bool fails);
/// A door, the chocks, the ground's power. False when the aircraft must stand for it.
bool SetGround(const GroundRow& row, bool on);

/// Moves the controls as the autopilot asks; what it doesn't fly is left as the pilot has it.
void FollowCommands(const AutoflightCommands& commands, FlightControls& controls);

/// One tick of 1/18 s. With `moves` the aircraft flies and AutoflightLogic runs; without, it stays where the
/// tokens put it, and only what the module writes of fuel, payload and position is taken.
void StepFlight(bool moves);

/// A value of the host's aircraft: lat lon alt hdg (true) ias gs vs bank pitch fuel weight. False for another
/// name.
bool AircraftValue(const std::string& name, double& value);

}  // namespace host
