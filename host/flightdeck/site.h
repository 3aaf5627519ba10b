#pragma once

#include <string>
#include <string_view>

#include "host/flightdeck/deck.h"

// What the deck answers to a browser: the page's folder, and the fonts and images that pictures name.

namespace host {

/// The fields of an HTTP request that matter; an empty text for one that isn't there.
struct SiteRequest {
    std::string_view target, host, origin, cookies;
};

struct SiteAnswer {
    int status;
    std::string_view type;
    std::string body;
};

/// A page that tells why there is no other, and what to do.
SiteAnswer Refusal(int status);

/// Is it one of the deck's pages, rather than what belongs to one?
bool IsPage(const SiteAnswer& answer);

/// May whoever sent this be answered? A page of another site may not reach the deck, nor may a name that such
/// a site has pointed at this machine; where a token is set whoever comes must know it.
bool MayConnect(const DeckSettings& settings, const SiteRequest& request);

/// The Set-Cookie field of an answer: the token came with the address of the page, what the page loads comes
/// with a cookie. Empty when the target hasn't got the token.
std::string TokenCookie(const DeckSettings& settings, std::string_view target);

/// What lies behind a target's path.
SiteAnswer AnswerFor(const DeckSettings& settings, std::string_view path);

}  // namespace host
