#pragma once

#include <functional>
#include <string>

#include "host/fly/fly.h"
#include "host/session.h"

namespace host {

/// Serves the flight deck and runs the session in real time, times the world's rate, until a signal
/// ends it: workers paint, commands of browsers are carried out between ticks; `opened` is called once its
/// address is told, `each_second` once a second of flight. False with the reason, and nothing is printed,
/// when the flight deck can't open.
bool RunFlightDeck(Session& session, const FlyOptions& options, const std::function<void()>& opened,
                   const std::function<void()>& each_second, std::string& error);

}  // namespace host
