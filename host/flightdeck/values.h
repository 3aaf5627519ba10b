#pragma once

#include <map>
#include <set>
#include <string>

#include "host/session.h"

// What browsers are shown of the session beside its pictures.

namespace host {

/// Values of names: "lvar:NAME" a named variable, "token:N" a raw token, "host:rate", "host:paused" and
/// "host:clock" (UTC) the time, "aircraft:NAME" the host's aircraft, any other a variable of the module. A
/// name that nobody knows is left out.
std::map<std::string, std::string> ReadValues(const Session& session, const std::set<std::string>& names);

/// What a page needs to know before all else, as JSON: the font families, the controls as the module tells
/// them, the names of its variables and of the named variables.
std::string DeckGreeting(const Session& session);

}  // namespace host
