#pragma once

#include <string>

#include "host/flightdeck/deck.h"
#include "host/session.h"

// Who has what: the demonstration's pilot lets go of a thing as soon as a user touches it, until he is given
// it back.

namespace host {

/// What both work, as bits of world.user_has. The stick is the autopilot too, thrust the autothrottle,
/// heading and altitude the modes that follow them.
enum Thing : unsigned {
    kFlapLever = 1,
    kGearLever = 2,
    kThrustLevers = 4,
    kSpeedbrakeLever = 8,
    kAutobrake = 16,
    kStick = 32,
    kSpeedWindow = 64,
    kHeadingWindow = 128,
    kAltitudeWindow = 256,
    kApproach = 512,
};
constexpr unsigned kAllThings = 1023;

/// The things that a command touches; 0 = none that the pilot works.
unsigned ThingsTouched(const DeckCommand& command);

/// A user's command: where a pilot flies, he lets go of what it touches. Then it is carried out.
void ApplyUserCommand(Session& session, const DeckCommand& command);

/// The pilot's command: carried out unless a user has what it touches.
void ApplyPilotCommand(Session& session, const DeckCommand& command);

/// What users have, for the page: "flaps, gear"; empty = nothing.
std::string TellWhatUserHas();

}  // namespace host
