#pragma once

#include <string>

#include "host/fly/fly.h"
#include "host/session.h"

namespace host {

/// Brings the module up with the aircraft where the options want it: lined up on the departure runway, its
/// route executed for a cruise altitude that suits its length, or cold on the ground. With a recorder in the
/// session the recording begins with the same. False with the reason.
bool StartFlight(Session& session, const FlyOptions& options, std::string& error);

}  // namespace host
