#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

// The flight deck in a browser, seen from the host's loop: commands come out of it, values go into it. Its
// network thread never waits for the loop, nor the loop for it.

namespace host {

/// What a browser has asked the host's loop to do.
struct DeckCommand {
    enum Kind { kNamedVariable, kStateVariable, kMouse, kKeyEvent, kPause, kRate, kText };
    Kind kind;
    std::string name;  // variable or gauge; of kText the side "L" or "R"
    std::string text;  // kStateVariable: the value; kText: what is typed
    double value = 0;  // kNamedVariable, kKeyEvent (the event), kPause, kRate
    double x = 0, y = 0;
    bool right = false;
};

struct DeckSettings {
    std::string address = "127.0.0.1";
    int port = 8900;    // 0 = any free one
    std::string token;  // asked for on an address wider than loopback
    std::string page_folder;
};

/// Where the deck gets pictures from; called on the network thread. False when there is none newer than
/// `after`.
using PictureSource = bool (*)(const std::string& screen, std::uint64_t after, std::string& bytes,
                               std::uint64_t& number);

class FlightDeck {
  public:
    struct Network;  // server.cpp's own

    FlightDeck(DeckSettings settings, PictureSource pictures);
    ~FlightDeck();
    FlightDeck(const FlightDeck&) = delete;
    FlightDeck& operator=(const FlightDeck&) = delete;

    /// Opens the port and starts the network thread. False with the reason.
    bool Start(std::string& error);
    void Stop();
    int port() const;

    /// The host's loop: takes what has been asked since the last call.
    std::vector<DeckCommand> TakeCommands();
    /// The names that any browser watches: named variables as "lvar:NAME", state variables by their own name.
    std::set<std::string> WatchedNames();
    /// Gives the values of watched names; what has changed goes out.
    void PublishValues(const std::map<std::string, std::string>& values);
    /// Lists that every browser gets when it connects, as JSON: the controls, the names of variables.
    void SetGreeting(std::string json);

  private:
    std::unique_ptr<Network> network_;
};

}  // namespace host
