#pragma once

#include "host/fly/runway.h"
#include "host/session.h"

// The last of an approach that no beam leads to the ground: the pilot lets the autopilot go and flies to the
// touch-down with stick, pedals and levers.

namespace host {

constexpr int kSetLevers = 0x100a1;  // key event

struct HandLanding {
    bool flies = false;     // the autopilot has been let go
    bool retarded = false;  // the autothrottle too, the levers are back
};

/// Acts once a second near the ground, from the let-go until the roll is over.
void StepHandLanding(HandLanding& landing, Session& session, const RunwayEnd& runway);

}  // namespace host
