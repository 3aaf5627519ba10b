#pragma once

#include <string>
#include <vector>

// How a browser on this or another machine finds the deck.

namespace host {

/// The page's addresses: of one address that one, of 0.0.0.0 and :: those of all interfaces that are up, this
/// machine's own last.
std::vector<std::string> DeckUrls(const std::string& address, int port, const std::string& token);

/// A text as a QR code for a terminal, two modules a letter high; empty when it is too long for one.
std::string DrawQrCode(const std::string& text);

}  // namespace host
