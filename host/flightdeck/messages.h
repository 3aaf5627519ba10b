#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "host/flightdeck/deck.h"

// The messages that a browser sends: JSON objects with a type. Whoever sends something else is told why in
// the reason with which its link is closed; a reason that is empty says that all was well. Texts are parsed
// and written here alone, for that takes the compiler long.

namespace host {

/// A text's object and its type; the reason for refusing it, or empty.
std::string ReadMessage(const std::string& text, nlohmann::json& message, std::string& type);

/// The text of a message to a browser; bytes that are no UTF-8 are replaced.
std::string WriteMessage(const nlohmann::json& message);

/// A command out of a message of the type; the reason for refusing it, or empty.
std::string ReadCommand(const nlohmann::json& message, const std::string& type, DeckCommand& command);

/// The message's `names`, `most` of them at the most; the reason for refusing it, or empty, and `to` stays as
/// it is when refused.
std::string ReadNames(const nlohmann::json& message, std::size_t most, std::set<std::string>& to);

}  // namespace host
