#include "host/flightdeck/browser_session.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "host/flightdeck/messages.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kMaxWatched = 2000;
constexpr int kMessageBurst = 400;  // of one browser
constexpr double kMessagesPerSecond = 100;
constexpr auto kBeat = std::chrono::milliseconds(500);

}  // namespace

BrowserSession::BrowserSession(Exchange& exchange)
    : exchange_(exchange), last_message_(Clock::now()), allowance_(kMessageBurst) {
    exchange_.browsers.push_back(this);
}

BrowserSession::~BrowserSession() {
    for (const std::string& lever : held_)
        QueueCommand(exchange_, {.kind = DeckCommand::kLever, .name = lever, .value = 0});
    std::erase(exchange_.browsers, this);
}

void BrowserSession::Greet() {
    greeting_due_ = true;
}

void BrowserSession::TakeValues(const std::map<std::string, std::string>& changed) {
    for (const auto& [name, value] : changed)
        if (watched_.contains(name)) changed_[name] = value;
    Write();
}

void BrowserSession::ForgetWatched() {
    watched_.clear();
    RenewWatched(exchange_);
}

std::string BrowserSession::Take(const std::string& text, bool is_text) {
    if (!TakeFromAllowance()) return "too many messages";
    if (!is_text) return "binary messages are not understood";
    nlohmann::json message;
    std::string type;
    if (const std::string reason = ReadMessage(text, message, type); !reason.empty()) return reason;
    if (type == "screens") {
        std::set<std::string> names;
        if (const std::string reason = ReadNames(message, kScreens.size(), names); !reason.empty())
            return reason;
        return TakeScreens(names);
    }
    if (type == "watch") {
        if (const std::string reason = ReadNames(message, kMaxWatched, watched_); !reason.empty())
            return reason;
        RenewWatched(exchange_);
        TakeValues(exchange_.values);
        return {};
    }
    DeckCommand command{};
    if (const std::string reason = ReadCommand(message, type, command); !reason.empty()) return reason;
    NoteHeld(command);
    QueueCommand(exchange_, std::move(command));
    return {};
}

// A browser that goes has no hand on anything any more.
void BrowserSession::NoteHeld(const DeckCommand& command) {
    if (command.kind != DeckCommand::kLever) return;
    for (const char* lever : {"elevator", "aileron", "rudder", "brakes"}) {
        if (command.name != lever) continue;
        if (command.value != 0)
            held_.insert(command.name);
        else
            held_.erase(command.name);
    }
}

// A browser forgets a screen that it doesn't want, and begins anew when it wants it again.
std::string BrowserSession::TakeScreens(const std::set<std::string>& names) {
    std::array<bool, kScreens.size()> wanted{};
    for (const std::string& name : names) {
        const std::size_t index = ScreenIndex(name);
        if (index == kScreens.size()) return "no such screen";
        wanted[index] = true;
    }
    for (std::size_t i = 0; i < kScreens.size(); ++i)
        if (!wanted[i]) streams_[i] = {};
    screens_wanted_ = wanted;
    return {};
}

// A bucket of messages that fills with time; false when it is empty.
bool BrowserSession::TakeFromAllowance() {
    const auto now = Clock::now();
    const double seconds = std::chrono::duration<double>(now - last_message_).count();
    last_message_ = now;
    allowance_ = std::min<double>(kMessageBurst, allowance_ + seconds * kMessagesPerSecond) - 1;
    return allowance_ >= 0;
}

bool BrowserSession::NextMessage(std::string& message, bool& is_binary) {
    if (!LoopRuns(exchange_)) return false;
    is_binary = false;
    if (greeting_due_) {
        message = exchange_.greeting;
        greeting_due_ = false;
    } else if (!changed_.empty()) {
        message = WriteMessage({{"type", "values"}, {"values", changed_}});
        changed_.clear();
    } else {
        message = NextPictures();
        is_binary = !message.empty();
        if (!is_binary) {
            if (Clock::now() - last_write_ < kBeat) return false;
            message = R"({"type":"beat"})";
        }
    }
    last_write_ = Clock::now();
    return true;
}

// Every wanted screen whose picture has changed: a byte with the screen's place, 4 bytes of length, the
// message.
std::string BrowserSession::NextPictures() {
    std::string all;
    for (std::size_t i = 0; i < kScreens.size(); ++i) {
        if (!screens_wanted_[i]) continue;
        const LastPicture& picture = PictureOf(exchange_, i);
        if (picture.number == 0 || picture.number == streams_[i].number) continue;
        const std::string message = NextPictureMessage(streams_[i], picture.bytes, picture.number);
        if (message.empty()) continue;
        all += static_cast<char>(i);
        for (int shift = 0; shift < 32; shift += 8) all += static_cast<char>(message.size() >> shift & 255);
        all += message;
    }
    return all;
}

}  // namespace host
