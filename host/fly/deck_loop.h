#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/flightdeck/deck.h"
#include "host/fly/fly.h"
#include "host/session.h"

// The session in real time, with the flight deck open to browsers.

namespace host {

struct DeckLoop;

/// Serves the flight deck and tells its address. Null with the reason, and nothing is printed, when it can't
/// open.
std::shared_ptr<DeckLoop> OpenFlightDeck(Session& session, const FlyOptions& options, std::string& error);

/// Runs the session, times the world's rate, until a signal ends it: workers paint, commands of browsers are
/// carried out between ticks; `each_second` is called once a second of flight.
void RunFlightDeck(DeckLoop& loop, const std::function<void()>& each_second);

/// For who steps the session himself: shows browsers the present, waits for the end of the period, an
/// eighteenth of a second, and gives what they have asked for in it.
std::vector<DeckCommand> PassPeriod(DeckLoop& loop);

}  // namespace host
