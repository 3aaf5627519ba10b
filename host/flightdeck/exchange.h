#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/flightdeck/deck.h"

// What goes between the host's loop and the browsers, without the network.

namespace host {

class BrowserSession;

/// The screens that a browser can ask for; their places here stand for them in messages.
constexpr std::array<std::string_view, 10> kScreens = {"capt_outb", "capt_inb", "fo_inb", "fo_outb", "lower",
                                                       "hud",       "stby",     "efb_l",  "efb_r",   "debug"};

/// A screen's place; kScreens.size() for no screen.
std::size_t ScreenIndex(std::string_view name);

/// How often a browser is given pictures: shorter than the workers' period, so that none waits.
constexpr auto kPicturePeriod = std::chrono::milliseconds(30);

/// The last picture of a screen, encoded once for all browsers.
struct LastPicture {
    std::string bytes;
    std::uint64_t number = 0;         // ours, 0 = none yet
    std::uint64_t source_number = 0;  // as the source counts, which may begin anew
    std::chrono::steady_clock::time_point asked{};
};

struct Exchange {
    DeckSettings settings;
    PictureSource pictures;

    // The network thread's.
    std::vector<BrowserSession*> browsers;      // all that live
    std::map<std::string, std::string> values;  // last published
    std::string greeting;
    std::array<LastPicture, kScreens.size()> last_pictures;

    // Both threads'.
    std::atomic<std::chrono::steady_clock::rep> loop_seen = 0;  // when the host's loop was last here
    std::mutex lock;                                            // over commands and watched
    std::condition_variable commands_came;
    std::vector<DeckCommand> commands;
    std::set<std::string> watched;
};

/// The host's loop: takes what browsers have asked for since the last call.
std::vector<DeckCommand> TakeCommands(Exchange& exchange);
bool WaitForCommands(Exchange& exchange, std::chrono::steady_clock::time_point until);
std::set<std::string> WatchedNames(Exchange& exchange);

// The rest is for the network thread.

/// Has the host's loop been here within the last second?
bool LoopRuns(const Exchange& exchange);
/// May a further browser come?
bool HasRoom(const Exchange& exchange);
/// Keeps a command for the host's loop; one too many is dropped.
void QueueCommand(Exchange& exchange, DeckCommand command);
/// Sums up what all browsers watch.
void RenewWatched(Exchange& exchange);
/// Keeps the values, and tells each browser what has changed of those that it watches.
void PublishValues(Exchange& exchange, std::map<std::string, std::string> values);
/// A screen's picture, asked of the source once a period, whoever wants it.
const LastPicture& PictureOf(Exchange& exchange, std::size_t screen);

}  // namespace host
