#include "host/flightdeck/exchange.h"

#include <algorithm>
#include <utility>

#include "host/flightdeck/browser_session.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kMaxBrowsers = 32;
constexpr std::size_t kMaxCommands = 1000;              // that wait for the host's loop, of all browsers
constexpr auto kLoopSilence = std::chrono::seconds(1);  // after which the host's loop counts as stopped

}  // namespace

std::size_t ScreenIndex(std::string_view name) {
    return static_cast<std::size_t>(std::find(kScreens.begin(), kScreens.end(), name) - kScreens.begin());
}

std::vector<DeckCommand> TakeCommands(Exchange& exchange) {
    exchange.loop_seen = Clock::now().time_since_epoch().count();
    const std::lock_guard guard(exchange.lock);
    return std::exchange(exchange.commands, {});
}

bool WaitForCommands(Exchange& exchange, Clock::time_point until) {
    std::unique_lock guard(exchange.lock);
    return exchange.commands_came.wait_until(guard, until, [&] { return !exchange.commands.empty(); });
}

std::set<std::string> WatchedNames(Exchange& exchange) {
    const std::lock_guard guard(exchange.lock);
    return exchange.watched;
}

bool LoopRuns(const Exchange& exchange) {
    return Clock::now().time_since_epoch() - Clock::duration(exchange.loop_seen) < kLoopSilence;
}

bool HasRoom(const Exchange& exchange) {
    return exchange.browsers.size() < kMaxBrowsers;
}

void QueueCommand(Exchange& exchange, DeckCommand command) {
    const std::lock_guard guard(exchange.lock);
    if (exchange.commands.size() < kMaxCommands) exchange.commands.push_back(std::move(command));
    exchange.commands_came.notify_one();
}

void RenewWatched(Exchange& exchange) {
    std::set<std::string> names;
    for (const BrowserSession* browser : exchange.browsers)
        names.insert(browser->watched().begin(), browser->watched().end());
    const std::lock_guard guard(exchange.lock);
    exchange.watched = std::move(names);
}

void PublishValues(Exchange& exchange, std::map<std::string, std::string> values) {
    std::map<std::string, std::string> changed;
    for (const auto& [name, value] : values) {
        const auto known = exchange.values.find(name);
        if (known == exchange.values.end() || known->second != value) changed.emplace(name, value);
    }
    exchange.values = std::move(values);
    if (changed.empty()) return;
    for (BrowserSession* browser : exchange.browsers) browser->TakeValues(changed);
}

const LastPicture& PictureOf(Exchange& exchange, std::size_t screen) {
    LastPicture& last = exchange.last_pictures[screen];
    const auto now = Clock::now();
    if (now - last.asked < kPicturePeriod / 2) return last;
    last.asked = now;
    std::string bytes;
    std::uint64_t number = 0;
    if (exchange.pictures &&
        exchange.pictures(std::string(kScreens[screen]), last.source_number, bytes, number)) {
        last.bytes = std::move(bytes);
        last.source_number = number;
        ++last.number;
    }
    return last;
}

}  // namespace host
