#pragma once

#include <functional>
#include <string>

#include "host/fly/fly.h"
#include "host/session.h"

namespace host {

/// Serves the flight deck and runs the session in real time, times the world's rate, until a signal
/// ends it: workers paint, commands of browsers are carried out between ticks, `each_second` is called once a
/// second of flight. False with the reason when the flight deck can't open.
bool RunFlightDeck(Session& session, const FlyOptions& options, const std::function<void()>& each_second,
                   std::string& error);

}  // namespace host
