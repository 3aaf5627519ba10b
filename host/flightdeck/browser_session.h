#pragma once

#include <array>
#include <chrono>
#include <map>
#include <set>
#include <string>

#include "host/flightdeck/exchange.h"
#include "host/flightdeck/picture_stream.h"

// What one browser wants, has and is to get next; whoever owns its link derives from this. On the network
// thread.

namespace host {

class BrowserSession {
  public:
    explicit BrowserSession(Exchange& exchange);
    virtual ~BrowserSession();
    BrowserSession(const BrowserSession&) = delete;
    BrowserSession& operator=(const BrowserSession&) = delete;

    const std::set<std::string>& watched() const { return watched_; }
    /// Keeps what it watches of the changed values, to be sent.
    void TakeValues(const std::map<std::string, std::string>& changed);

  protected:
    /// Sends the next message, if the link is free.
    virtual void Write() = 0;

    /// Begins with what every page needs to know.
    void Greet();
    /// Acts on one message; the reason for which this browser is to be closed, or empty.
    std::string Take(const std::string& text, bool is_text);
    /// What goes out next: first the greeting, then values, then pictures, else a sign of life. False when
    /// nothing does; so while the host's loop stands still, for the page had better blank than show what was.
    bool NextMessage(std::string& message, bool& is_binary);
    void ForgetWatched();

  private:
    bool TakeFromAllowance();
    void NoteHeld(const DeckCommand& command);
    std::string TakeScreens(const std::set<std::string>& names);
    std::string NextPictures();

    Exchange& exchange_;
    bool greeting_due_ = false;
    std::map<std::string, std::string> changed_;
    std::set<std::string> watched_;
    std::set<std::string> held_;  // levers that spring back, which this browser holds
    std::array<bool, kScreens.size()> screens_wanted_{};
    std::array<PictureStream, kScreens.size()> streams_;
    std::chrono::steady_clock::time_point last_write_{}, last_message_;
    double allowance_;
};

}  // namespace host
